#include "RandomStrokes.hpp"

namespace {

constexpr Qt::KeyboardModifiers none;
constexpr auto controlShift = Qt::ControlModifier | Qt::ShiftModifier;

} // namespace

std::vector<Stroke> const& strokes() {
    static std::vector<Stroke> const all = {
        {Qt::Key_A, none},
        {Qt::Key_E, none},
        {Qt::Key_M, Qt::ShiftModifier},
        {Qt::Key_0, none},
        {Qt::Key_1, none},
        {Qt::Key_2, none},
        {Qt::Key_5, none},
        {Qt::Key_9, none},
        {Qt::Key_Minus, none},
        {Qt::Key_Plus, none},
        {Qt::Key_Period, none},
        {Qt::Key_Asterisk, none},
        {Qt::Key_Left, none},
        {Qt::Key_Right, none},
        {Qt::Key_Right, Qt::ShiftModifier},
        {Qt::Key_Up, none},
        {Qt::Key_Down, none},
        {Qt::Key_Home, none},
        {Qt::Key_End, none},
        {Qt::Key_PageUp, none},
        {Qt::Key_PageDown, none},
        {Qt::Key_Tab, none},
        {Qt::Key_Tab, none},
        {Qt::Key_Backtab, Qt::ShiftModifier},
        {Qt::Key_Return, none},
        {Qt::Key_Return, none},
        {Qt::Key_Space, none},
        {Qt::Key_Space, none},
        {Qt::Key_Escape, none},
        {Qt::Key_Backspace, none},
        {Qt::Key_Delete, none},
        {Qt::Key_Menu, none},
        {Qt::Key_A, Qt::ControlModifier},
        {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_V, Qt::ControlModifier},
        {Qt::Key_X, Qt::ControlModifier},
        {Qt::Key_Z, Qt::ControlModifier},
        {Qt::Key_Z, Qt::ControlModifier},
        {Qt::Key_Z, controlShift},
        {Qt::Key_D, Qt::ControlModifier},
        {Qt::Key_C, controlShift},
        {Qt::Key_V, controlShift},
        {Qt::Key_F, Qt::ControlModifier},
        {Qt::Key_R, Qt::ControlModifier},
        {Qt::Key_O, Qt::AltModifier},
    };
    return all;
}

std::vector<Stroke> const& rareStrokes() {
    static std::vector<Stroke> const all = {
        {Qt::Key_N, Qt::ControlModifier}, {Qt::Key_O, Qt::ControlModifier}, {Qt::Key_S, Qt::ControlModifier},
        {Qt::Key_S, controlShift},        {Qt::Key_Q, Qt::ControlModifier},
    };
    return all;
}

std::vector<QString> const& typedLetters() {
    static std::vector<QString> const all = {
        QStringLiteral(u"\u00e4"),  QStringLiteral(u"\u00df"),     QStringLiteral(u"\u03a9"),
        QStringLiteral(u"\u0663"),  QStringLiteral(u"\u05d0"),     QStringLiteral(u"\u6f22"),
        QStringLiteral(u"e\u0301"), QStringLiteral(u"\U0001F600"), QString(),
    };
    return all;
}
