#pragma once

#include <QComboBox>
#include <QWidget>
#include <string>
#include <vector>

namespace MoreInputs {

/// A drop-down box whose list finds what is typed (FindingList). A letter opens the list, so that a value is chosen by
/// Return only, and Escape leaves it as it was. User-interface thread.
class DropdownBox : public QComboBox {
    Q_OBJECT

public:
    /// `parent` owns the box.
    explicit DropdownBox(QWidget* parent);
    ~DropdownBox() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// A drop-down box in an editor. User-interface thread.
class DropdownFrame : public QWidget {
    Q_OBJECT

public:
    /// `parent` owns the frame and may be null.
    explicit DropdownFrame(QWidget* parent);
    ~DropdownFrame() override;

    /// Shows these texts and one of them as chosen; -1 for none. Nothing is chosen by this.
    void showTexts(std::vector<std::string> const& texts, int current);
    /// Shows another text of those as chosen; -1 for none. Nothing is chosen by this.
    void showCurrent(int current);

signals:
    /// The user chose a text by its place. A receiver may delete the frame.
    void chosen(int place);

private:
    DropdownBox* const box_;
};

} // namespace MoreInputs
