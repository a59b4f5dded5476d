#include "support/TaloTest.hpp"

#include <tessera/TerminalText.hpp>

namespace {

using Tessera::terminalText;

class TerminalTexts : public TaloTest {};

TEST_F(TerminalTexts, KeepWhatIsNoControl) {
    for (auto const* const text : {"", "plain", "50%2.png", "\"quoted\" \\ back", "grün 日本 😀", "a\u00A0b"})
        EXPECT_EQ(terminalText(text), text);
}

TEST_F(TerminalTexts, ShowControlsAsText) {
    EXPECT_EQ(terminalText("a\x1b[2Jb\a\tc\r\x7f"), "a\\x1b[2Jb\\x07\\x09c\\x0d\\x7f");
    EXPECT_EQ(terminalText("a\nb"), "a\\nb");
    EXPECT_EQ(terminalText(std::string("a\0b", 3)), "a\\x00b");
    EXPECT_EQ(terminalText("\u009b2J"), "\\xc2\\x9b2J") << "the control sequences of eight bits";
    EXPECT_EQ(terminalText("a\u202Egnp.exe"), "a\\xe2\\x80\\xaegnp.exe") << "it would be shown backwards";
}

TEST_F(TerminalTexts, ShowEveryCharacterThatTurnsTheDirectionAsTextAndNoOther) {
    for (auto const* const turning :
         {"\u202A", "\u202B", "\u202C", "\u202D", "\u202E", "\u2066", "\u2067", "\u2068", "\u2069"})
        EXPECT_EQ(terminalText(turning).substr(0, 4), "\\xe2");
    for (auto const* const other : {"\u2029", "\u202F", "\u2065", "\u206A"})
        EXPECT_EQ(terminalText(other), other);
}

TEST_F(TerminalTexts, ShowTheFirstAndTheLastControlAsTextAndNotTheirNeighbours) {
    EXPECT_EQ(terminalText("\x01\x1f \x7e\x7f"), "\\x01\\x1f ~\\x7f");
    EXPECT_EQ(terminalText("\u0080\u009f\u00a0"), "\\xc2\\x80\\xc2\\x9f\u00a0");
}

TEST_F(TerminalTexts, ShowBytesThatAreNoCharactersAsText) {
    EXPECT_EQ(terminalText("\x9b"
                           "2J"),
              "\\x9b2J");
    EXPECT_EQ(terminalText("\xc3"), "\\xc3");
    EXPECT_EQ(terminalText("\xc3"
                           "a"),
              "\\xc3a");
    EXPECT_EQ(terminalText("\xc0\x80\xf5\x80\x80\x80"), "\\xc0\\x80\\xf5\\x80\\x80\\x80");
}

} // namespace
