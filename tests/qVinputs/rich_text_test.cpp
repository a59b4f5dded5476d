#include "support/TestHost.hpp"

#include <bramble/HarmlessText.hpp>
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>
#include <QElapsedTimer>
#include <QLabel>
#include <QTextDocument>
#include <random>

namespace {

using Kolt::harmlessText;

/// A document like that of a label, which records the resources that it would load.
class Document : public QTextDocument {
public:
    explicit Document(std::string const& bytes) {
        auto const text = QString::fromStdString(bytes);
        if (!Qt::mightBeRichText(text))
            return;
        setHtml(text);
        size();
    }
    QStringList loaded;

protected:
    QVariant loadResource(int, QUrl const& name) override {
        loaded << name.toString();
        return {};
    }
};

/// A random combination of the parts that rich texts consist of.
std::string randomText(std::mt19937& random) {
    static std::vector<std::string> const pieces = {"<",
                                                    ">",
                                                    "</",
                                                    "/>",
                                                    "=",
                                                    "\"",
                                                    "'",
                                                    " ",
                                                    "\n",
                                                    "!",
                                                    "--",
                                                    "<!--",
                                                    "-->",
                                                    "<?xml",
                                                    "?>",
                                                    "<!doctype",
                                                    "img",
                                                    "b",
                                                    "table",
                                                    "td",
                                                    "style",
                                                    "body",
                                                    "a",
                                                    "p",
                                                    "head",
                                                    "title",
                                                    "link",
                                                    "h1",
                                                    "br",
                                                    "tt",
                                                    "nonsense",
                                                    "src=x",
                                                    "href=x",
                                                    "background=x",
                                                    "style='background:url(x)'",
                                                    "url(x)",
                                                    "rel=stylesheet",
                                                    "&lt;",
                                                    "&amp;",
                                                    "x",
                                                    "7",
                                                    "\u00A0",
                                                    "\u00E9",
                                                    "<img src=x>",
                                                    "<b>",
                                                    "</b>",
                                                    "<style>",
                                                    "</style>",
                                                    "<table background=x>"};
    std::string text;
    for (auto count = random() % 12; count > 0; --count)
        text += pieces[random() % pieces.size()];
    return text;
}

class RichTexts : public PluginTest {};

TEST_F(RichTexts, LoadNothingWhateverTheyContain) {
    std::mt19937 random(7);
    int loading = 0;
    for (int round = 0; round < 20'000; ++round) {
        auto const text = randomText(random);
        auto const harmless = harmlessText(text);
        ASSERT_THAT(Document(harmless).loaded, testing::IsEmpty()) << text << "\nbecame\n" << harmless;
        loading += Document(text).loaded.isEmpty() ? 0 : 1;
    }
    EXPECT_GT(loading, 100) << "of the texts themselves many load something";
}

TEST_F(RichTexts, AreDistinguishedFromPlainTextsAsByQt) {
    std::mt19937 random(8);
    int rich = 0;
    for (int round = 0; round < 50'000; ++round) {
        auto const text = randomText(random);
        bool const isRich = Qt::mightBeRichText(QString::fromStdString(text));
        bool const isAscii = std::all_of(text.begin(), text.end(), [](char c) { return c > 0; });
        // For a plain text with other than ASCII characters it may also return true.
        ASSERT_TRUE(Kolt::isRichText(text) == isRich || (!isRich && !isAscii)) << text;
        rich += isRich ? 1 : 0;
    }
    EXPECT_GT(rich, 1000);
    for (auto const* const name :
         {"a",     "abbr", "address", "b",   "big",   "blockquote", "body",   "br",    "button",   "caption", "center",
          "cite",  "code", "col",     "dd",  "del",   "dfn",        "div",    "dl",    "dt",       "em",      "font",
          "form",  "h1",   "h2",      "h3",  "h4",    "h5",         "h6",     "h7",    "head",     "hr",      "html",
          "i",     "img",  "input",   "ins", "kbd",   "li",         "link",   "meta",  "multicol", "nobr",    "object",
          "ol",    "p",    "pre",     "qt",  "s",     "samp",       "script", "small", "span",     "strike",  "strong",
          "style", "sub",  "sup",     "svg", "table", "tbody",      "td",     "tfoot", "th",       "thead",   "title",
          "tr",    "tt",   "u",       "ul",  "var",   "video"}) {
        auto const text = '<' + std::string(name) + '>';
        EXPECT_EQ(Kolt::isRichText(text), Qt::mightBeRichText(QString::fromStdString(text))) << name;
    }
}

TEST_F(RichTexts, AreShownQuicklyByTheDisplaysHoweverLongAndNested) {
    std::string nested;
    for (int depth = 0; depth < 50'000; ++depth)
        nested += "<table><tr><td><b>x";
    std::string wide = "<table><tr>";
    for (int count = 0; count < 500'000; ++count)
        wide += "<td>x</td>";
    for (auto const& text : {nested, wide, "<b>" + std::string(8'000'000, 'x')}) {
        QElapsedTimer clock;
        clock.start();
        auto const status = open(makeParameter("o.status", Kolt::makeValue(Kolt::VObjectStatus(text))));
        auto const information = open(makeParameter("o.info", Kolt::makeValue(Kolt::info(text))));
        parent->show();
        QCoreApplication::processEvents();
        EXPECT_LT(clock.elapsed(), 4000) << text.substr(0, 30);
        delete status.widget;
        delete information.widget;
    }
}

TEST_F(RichTexts, OfAStatusReadNoFileOfTheMachine) {
    QImage picture(7, 5, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QTemporaryDir const folder;
    auto const file = folder.filePath("picture.png");
    ASSERT_TRUE(picture.save(file));
    auto const widthOf = [&](QString const& text) {
        auto const editor = open(makeParameter("o.status", Kolt::makeValue(Kolt::VObjectStatus(text.toStdString()))));
        return editor.widget->sizeHint().width();
    };
    EXPECT_EQ(widthOf("<p>text<img width='500' src='" + file + "'></p>"), widthOf("<p>text</p>"));
    EXPECT_EQ(widthOf("<p>text<img width='500' src='file:" + file + "'></p>"), widthOf("<p>text</p>"));
}

} // namespace
