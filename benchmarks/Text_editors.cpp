#include "BenchmarkCase.hpp"

#include <array>
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextDocument>
#include <QTextEdit>

namespace {

std::array<std::string, 2> const texts{"/data/a text.tar.gz", "/data/another text.tar.gz"};

QFont smallBold(char const* family, QFont const& otherwise) {
    QFont font(QLatin1String{family});
    if (!font.exactMatch())
        return otherwise;
    font.setPointSize(8);
    font.setWeight(QFont::Bold);
    return font;
}

class BareLabel : public QLabel, public BareEditor {
public:
    explicit BareLabel(QWidget* parent) : QLabel(parent) { setText(QString::fromStdString(value_)); }
    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = texts[n == 0 ? 0 : 1];
        setText(QString::fromStdString(value_));
    }

private:
    std::string value_ = texts[0];
};

class BareStatus : public BareLabel {
public:
    explicit BareStatus(QWidget* parent) : BareLabel(parent) {
        setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse);
    }
};

class BareLine : public QLineEdit, public BareEditor {
public:
    explicit BareLine(QWidget* parent) : QLineEdit(parent) {
        setFont(smallBold("DejaVu Sans Mono", font()));
        setText(QString::fromStdString(value_));
        connect(this, &QLineEdit::textEdited, this, [this](QString const& text) {
            value_ = text.toStdString();
            notify(text);
        });
    }
    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = texts[n == 0 ? 0 : 1];
        setText(QString::fromStdString(value_));
    }

private:
    std::string value_ = texts[0];
};

class BareText : public QTextEdit, public BareEditor {
public:
    explicit BareText(QWidget* parent) : QTextEdit(parent) {
        setAcceptRichText(false);
        document()->setDefaultFont(smallBold("DejaVu Sans Mono", document()->defaultFont()));
        document()->setPlainText(QString::fromStdString(value_));
    }
    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = texts[n == 0 ? 0 : 1];
        auto const text = QString::fromStdString(value_);
        if (document()->toPlainText() != text)
            document()->setPlainText(text);
    }

protected:
    bool event(QEvent* event) override {
        auto const type = event->type();
        if (type == QEvent::FocusOut || type == QEvent::Leave || type == QEvent::ShortcutOverride)
            value_ = document()->toPlainText().toStdString();
        return QTextEdit::event(event);
    }

private:
    std::string value_ = texts[0];
};

class BareFileName : public QPushButton, public BareEditor {
public:
    /// Shows what it is for until a file is chosen.
    BareFileName(QWidget* parent, QString const& caption) : QPushButton(caption, parent) {
        setFont(smallBold("Arial", font()));
        connect(this, &QPushButton::released, this,
                [this] { value_ = QFileDialog::getSaveFileName(this).toStdString(); });
    }
    QWidget* widget() override { return this; }
    void change(int n) override {
        value_ = texts[n == 0 ? 0 : 1];
        auto const name = QString::fromStdString(value_);
        setText(QFileInfo(name).baseName());
        setToolTip(name);
    }

private:
    std::string value_;
};

// A key goes in and out again, so that the text does not grow.
void type(QWidget& editor, int n) {
    QTest::keyClick(&editor, n == 0 ? Qt::Key_X : Qt::Key_Backspace);
}

template <typename T, typename Bare>
BenchmarkCase textCase(std::string const& creator, std::vector<std::string> const& preferences) {
    auto made = benchmarkCase(creator, preferences, T{texts[0]}, T{texts[1]});
    made.makeBare = [](QWidget* parent) { return new Bare(parent); };
    return made;
}

BenchmarkCase fileNameCase(std::string const& creator, std::string const& preference, QString const& caption) {
    auto made = benchmarkCase(creator, {preference}, texts[0], texts[1]);
    made.makeBare = [caption](QWidget* parent) { return new BareFileName(parent, caption); };
    return made;
}

} // namespace

void addTextBenchmarks(std::vector<BenchmarkCase>& cases) {
    cases.push_back(textCase<Kolt::info, BareLabel>("InformationDisplay", {}));
    cases.push_back(textCase<Kolt::VObjectStatus, BareStatus>("StatusDisplay", {}));

    auto line = textCase<std::string, BareLine>("simplestring", {});
    line.edit = type;
    cases.push_back(line);

    auto array = textCase<std::string, BareLine>("singlelinestring", {});
    array.makeParameter = [] {
        return Kolt::ParameterPtr(new Kolt::VParameter("object.parameter", Kolt::makeValue(texts[0]),
                                                       Kolt::VParameter::Values::Shared,
                                                       Tessera::Typename(typeid(std::array<std::string, 1>))));
    };
    array.edit = type;
    cases.push_back(array);

    auto text = textCase<std::string, BareText>("string", {Kolt::VValueTrait<std::string>::MultiLine()});
    text.edit = type;
    cases.push_back(text);

    // What an edit costs is a person's time in a dialog, so there is none here.
    cases.push_back(fileNameCase("FileNameCreator", "Save as", QStringLiteral("Save as")));
    cases.push_back(fileNameCase("FileNameCreatorPDF", "Save as PDF", QStringLiteral("Save as PDF")));
    cases.push_back(fileNameCase("OpenFileCreator", "FileInput", QStringLiteral("Select File")));
}
