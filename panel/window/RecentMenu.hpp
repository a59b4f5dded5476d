#pragma once

#include <QMenu>
#include <QStringList>

namespace Panel {

/// The network files that were open last, the latest first. User-interface thread.
class RecentMenu : public QMenu {
    Q_OBJECT

public:
    /// How many files are listed.
    static constexpr int Capacity = 10;

    explicit RecentMenu(QWidget* parent = nullptr);
    ~RecentMenu() override;

    /// The files, absolute and without links.
    QStringList const& files() const { return files_; }
    /// Lists these files behind those that are listed already. What is no absolute name is left out.
    void addOlder(QStringList const& files);
    /// Puts a file first; an empty name is ignored.
    void add(QString const& file);
    /// Lists a file no longer.
    void drop(QString const& file);

signals:
    /// A file was chosen; it may be gone.
    void chosen(QString const& file);

private:
    void fill();

    QStringList files_;
};

} // namespace Panel
