#include "BareTextEditor.hpp"

#include <QEvent>
#include <QTextDocument>
#include <QTextEdit>

std::string const& longText() {
    static auto const text = [] {
        std::string lines;
        while (lines.size() < 1'000'000)
            lines += "a line of sixty-four characters, which is what a line may hold.\n";
        return lines;
    }();
    return text;
}

namespace {

/// What a program of bare Qt would do with the same events.
class BareTextEditor : public QTextEdit {
public:
    explicit BareTextEditor(QWidget* parent) : QTextEdit(parent) {
        setAcceptRichText(false);
        document()->setPlainText(QString::fromStdString(longText()));
    }

protected:
    bool event(QEvent* event) override {
        auto const type = event->type();
        if (type == QEvent::FocusOut || type == QEvent::Leave || type == QEvent::ShortcutOverride)
            text_ = document()->toPlainText().toStdString();
        return QTextEdit::event(event);
    }

private:
    std::string text_;
};

} // namespace

QTextEdit* makeBareTextEditor(QWidget* parent) {
    return new BareTextEditor(parent);
}
