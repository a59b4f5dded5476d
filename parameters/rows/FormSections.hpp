#pragma once

#include <parameters/rows/RowLayout.hpp>
#include <QMargins>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <tessera/Export.hpp>
#include <vector>

namespace Talo {

class SectionBox;

/// The sections of a form: their titles, which of them are folded, and their boxes, which are made when they are first
/// seen. Sections have the numbers that they have in the layout. User-interface thread.
class TALO_EXPORT FormSections : public QObject {
    Q_OBJECT

public:
    /// The boxes are children of `content`. Both must outlive the sections.
    FormSections(QWidget& content, RowLayout& layout, QStringList const& titles, QObject* parent = nullptr);
    ~FormSections() override;

    /// The box of a section, made if it does not exist.
    SectionBox* box(std::size_t section);
    /// Asks the style how much room boxes take, for the layout.
    void measure();
    /// From the outer edge of a box to its rows.
    QMargins const& margins() const { return margins_; }
    /// Puts the boxes where the layout has them, and makes those between two heights of the content. In pixels.
    void arrange(int left, int width, int top, int bottom);

    /// The titles of the folded sections.
    QStringList folded() const;
    /// Folds the sections with these titles and opens the others. Emits nothing.
    void setFolded(QStringList const& titles);
    /// Folds or opens all sections that have a title, as a user does.
    void foldAll(bool folded);
    /// Shows the rows of folded sections as well, as while a filter finds them. Says whether that is new.
    bool setAllOpen(bool open);

signals:
    /// A user folded or opened sections.
    void foldChanged();
    /// A menu for the section with this title is wanted at this place of the screen.
    void menuRequested(QString const& title, QPoint const& place);

private:
    void updateLayout();
    void fold(QString const& title, bool folded);

    QWidget& content_;
    RowLayout& layout_;
    QStringList const titles_;
    std::vector<SectionBox*> boxes_;
    QSet<QString> folded_;
    bool allOpen_ = false;
    QMargins margins_;
};

} // namespace Talo
