#include "EditorCases.hpp"
#include "support/FileDialogs.hpp"

#include <array>
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTextEdit>

namespace {

EditorCase::Value makeText(int n) {
    return Kolt::makeValue("text " + std::to_string(n) + " \u00e9\u65e5");
}

EditorCase textCase(char const* name, char const* creator, std::vector<std::string> preferences) {
    EditorCase text;
    text.name = name;
    text.creator = creator;
    text.preferences = std::move(preferences);
    text.makeValue = makeText;
    // Without a pool the commit still tries to store the value.
    text.reportsMissingOwnerWithoutPool = true;
    return text;
}

EditorCase lineCase(char const* name, char const* creator, std::vector<std::string> preferences) {
    auto line = textCase(name, creator, std::move(preferences));
    line.shown = [](QWidget& editor) { return dynamic_cast<QLineEdit&>(editor).text().toStdString(); };
    line.edit = [](QWidget& editor) { QTest::keyClick(&editor, Qt::Key_X); };
    return line;
}

EditorCase fileCase(char const* name, char const* creator, char const* preference, char const* fileName) {
    auto file = textCase(name, creator, {preference});
    file.makeValue = [](int n) { return Kolt::makeValue("/data/file " + std::to_string(n) + ".tar.gz"); };
    file.shown = [](QWidget& editor) { return editor.toolTip().toStdString(); };
    file.edit = [fileName](QWidget& editor) {
        auto const path = QDir::home().filePath(QLatin1String(fileName));
        EXPECT_TRUE(withFileDialog([&] { QTest::mouseClick(&editor, Qt::LeftButton); },
                                   [&](QFileDialog& dialog) { enterFileName(dialog, path); }));
    };
    return file;
}

template <typename T>
EditorCase displayCase(char const* name, char const* creator) {
    EditorCase display;
    display.name = name;
    display.creator = creator;
    display.makeValue = [](int n) { return Kolt::makeValue(T{"text " + std::to_string(n) + " \u00e9\u65e5"}); };
    display.shown = [](QWidget& editor) { return dynamic_cast<QLabel&>(editor).text().toStdString(); };
    return display;
}

} // namespace

void addTextEditors(std::vector<EditorCase>& cases) {
    cases.push_back(displayCase<Kolt::info>("information", "InformationDisplay"));
    cases.push_back(displayCase<Kolt::VObjectStatus>("status", "StatusDisplay"));
    cases.push_back(lineCase("oneLine", "simplestring", {}));

    // Networks store a text for a parameter of this type.
    auto array = lineCase("oneLineArray", "singlelinestring", {});
    array.declaredType = Tessera::Typename(typeid(std::array<std::string, 1>));
    cases.push_back(array);

    auto multiLine = textCase("multiLine", "string", {Kolt::VValueTrait<std::string>::MultiLine()});
    multiLine.shown = [](QWidget& editor) { return dynamic_cast<QTextEdit&>(editor).toPlainText().toStdString(); };
    multiLine.edit = [](QWidget& editor) {
        // Not by a key, which commits twice: before the key is applied, and when the mouse leaves.
        QInputMethodEvent typed;
        typed.setCommitString(QStringLiteral("x"));
        QCoreApplication::sendEvent(&editor, &typed);
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&editor, &leave);
    };
    cases.push_back(multiLine);

    // A save button shows its caption until a value comes from elsewhere.
    auto save = fileCase("saveAs", "FileNameCreator", "Save as", "saved.txt");
    save.showsValue = false;
    cases.push_back(save);
    auto savePdf = fileCase("saveAsPdf", "FileNameCreatorPDF", "Save as PDF", "saved.pdf");
    savePdf.showsValue = false;
    cases.push_back(savePdf);

    auto open = fileCase("openFile", "OpenFileCreator", "FileInput", "opened.txt");
    open.edit = [edit = open.edit](QWidget& editor) {
        QFile file(QDir::home().filePath(QLatin1String("opened.txt")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.close();
        edit(editor);
    };
    cases.push_back(open);
}
