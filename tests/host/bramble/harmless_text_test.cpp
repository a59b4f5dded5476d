#include "support/TaloTest.hpp"

#include <bramble/HarmlessText.hpp>
#include <bramble/Info.hpp>
#include <bramble/ObjectStatus.hpp>

namespace {

using Kolt::harmlessText;
using Kolt::LongestRichText;
using Kolt::MostNestedTags;

std::string repeated(std::string const& text, std::size_t count) {
    std::string all;
    for (; count > 0; --count)
        all += text;
    return all;
}

std::size_t countOf(std::string const& part, std::string const& text) {
    std::size_t count = 0;
    for (auto place = text.find(part); place != std::string::npos; place = text.find(part, place + 1))
        ++count;
    return count;
}

class HarmlessTexts : public TaloTest {};

TEST_F(HarmlessTexts, OfPlainTextsAreThemselves) {
    for (auto const* const text :
         {"", "idle", "a < 7 and 8 > c", "1 & 2", "a\n<img src=\"x\">", "<no tag>", "<b", "50 %", "x <3 y>", "a\n\xff"})
        EXPECT_EQ(harmlessText(text), text);
    std::string const text = "plain\n" + repeated("<table>", 100'000);
    EXPECT_EQ(harmlessText(text), text);
}

TEST_F(HarmlessTexts, OfHarmlessRichTextsAreThemselves) {
    for (auto const* const text :
         {"<b>bold</b>", "Computing: 7 %. <a href=\"cancel\">Cancel</a>", "<p>one</p><p>two<br>three<br/>four</p>",
          "a &lt; b", "<font color=\"red\" size=\"+2\">red</font>", "<ul><li>one<li>two</ul>", "<h1>ä</h1>"})
        EXPECT_EQ(harmlessText(text), text);
}

TEST_F(HarmlessTexts, LoadNothing) {
    std::pair<char const*, char const*> const cases[] = {
        {"a<img src=\"/etc/passwd\">b<b>c</b>", "ab<b>c</b>"},
        {"<IMG SRC=x><p background='x' style=\"background-image:url(x)\">a", "<p>a"},
        {"<body background=x><table background=x><tr><td background=x>a", "<body><br> a"},
        {"<link rel=stylesheet href=x><b>a</b>", "<b>a</b>"},
        {"<style>p { background: url(x) }</style><b>a</b>", "<b>a</b>"},
        {"<head><title>a<b></title></head><b>c</b>", "<b>c</b>"},
        {"<script>if (a < b) run()</script><i>d</i>", "<i>d</i>"},
        {"<b><img alt='>' src=x>a", "<b>a"},
        {"<b a='<img src=x>'>a", "<b>a"},
        {"<b><!-- > <img src=x> -->a", "<b>a"},
        {"<!doctype html><img src=x>a", "a"},
        {"<?xml version='1.0'?>\n<p><img src=x/>a", "\n<p>a"},
        {"<b>a< img src=x>b", "<b>ab"},
        {"<b>a<img src=x", "<b>a"},
        {"<a href='x\"><img src=y>'>a</a>", "<a href=\"x&quot;&gt;&lt;img src=y&gt;\">a</a>"},
        {"<a title=t href=cancel>a</A>", "<a href=\"cancel\">a</a>"},
        {"<font size=9999 color=red>a", "<font color=\"red\">a"},
        {"<table><tr><th>a</th><td>b</td></tr><tr><td>c</td></tr></table>", "<br> a b<br> c"},
        {"<b>a<object data=x><iframe src=x><video src=x>b", "<b>ab"}};
    for (auto const& [text, harmless] : cases) {
        EXPECT_TRUE(Kolt::isRichText(text)) << text;
        EXPECT_EQ(harmlessText(text), harmless);
    }
}

TEST_F(HarmlessTexts, AreNestedNoDeeperThanAFewTags) {
    for (auto const* const name : {"b", "blockquote", "ul", "div"}) {
        auto const open = '<' + std::string(name) + '>';
        auto const text = harmlessText(repeated(open, 2000) + "x");
        EXPECT_EQ(countOf(open, text), MostNestedTags) << name;
    }
    auto const list = "<ul>" + repeated("<li>x", 100) + "</ul>" + repeated("<b>y</b>", 100);
    EXPECT_EQ(harmlessText(list), list) << "one after the other is not nested";
    EXPECT_EQ(harmlessText("<b>a</i></b></b>c"), "<b>a</b>c") << "what is not open cannot be closed";
}

TEST_F(HarmlessTexts, AreNotLong) {
    auto const text = harmlessText("<b>" + repeated("ä", LongestRichText));
    EXPECT_LE(text.size(), LongestRichText + 3);
    EXPECT_EQ(text.substr(text.size() - 5), "ä…") << "no half of a character";
    auto const tags = harmlessText(repeated("<a href=\"link\">x</a>", LongestRichText));
    EXPECT_LE(tags.size(), LongestRichText + 3);
    EXPECT_EQ(countOf("<", tags), countOf(">", tags)) << "no half of a tag";
    EXPECT_EQ(harmlessText("&lt;" + repeated("x", 10'000'000)).size(), LongestRichText + 3);
}

TEST_F(HarmlessTexts, AreWhatStatusAndInfoHold) {
    std::string const text = "<b>a</b><img src=x>";
    EXPECT_EQ(Kolt::VObjectStatus(text).text(), "<b>a</b>");
    EXPECT_EQ(Kolt::info(text).text, "<b>a</b>");
    Kolt::VObjectStatus status;
    EXPECT_TRUE(Kolt::VValueTrait<Kolt::VObjectStatus>::setValueFromText(status, text));
    EXPECT_EQ(status.text(), "<b>a</b>");
    Kolt::info information;
    EXPECT_TRUE(Kolt::VValueTrait<Kolt::info>::setValueFromText(information, text));
    EXPECT_EQ(information.text, "<b>a</b>");
}

} // namespace
