#pragma once

#include <string>

class QTextEdit;
class QWidget;

/// A text of one megabyte in lines of 64 characters.
std::string const& longText();

/// An editor of bare Qt with the long text. It copies its text whenever the plug-in's editor stores it: when the mouse
/// or the focus leaves, and at each key. The parent owns it.
QTextEdit* makeBareTextEditor(QWidget* parent);
