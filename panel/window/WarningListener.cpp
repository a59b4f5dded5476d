#include <panel/window/WarningListener.hpp>

#include <cstdio>
#include <tessera/TerminalText.hpp>

namespace Panel {

WarningListener::WarningListener(QObject* parent) : QObject(parent) {}

WarningListener::~WarningListener() = default;

void WarningListener::onWarning(std::string const& text) {
    std::fprintf(stderr, "%s\n", Tessera::terminalText(text).c_str());
    emit warned(QString::fromStdString(text));
}

} // namespace Panel
