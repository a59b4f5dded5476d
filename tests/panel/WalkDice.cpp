#include "WalkDice.hpp"

#include <parameters/rows/ParameterRow.hpp>
#include <QDir>
#include <QFileInfo>
#include <stdexcept>

WalkDice::WalkDice(QString const& logFile) : log_(logFile) {
    if (logFile.isEmpty())
        return;
    QDir().mkpath(QFileInfo(logFile).path());
    // Unbuffered, as a crash leaves nothing behind that is not written.
    if (!log_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        throw std::runtime_error("cannot write " + logFile.toStdString());
}

WalkDice::~WalkDice() {
    if (log_.isOpen())
        log_.write("\n");
}

void WalkDice::begin(std::string const& line, unsigned seed) {
    random_.seed(seed);
    if (!log_.isOpen())
        return;
    log_.write(QByteArray::fromStdString((isLineOpen_ ? "\n" : "") + line));
    isLineOpen_ = true;
}

void WalkDice::note(std::string const& text) {
    if (log_.isOpen())
        log_.write(QByteArray::fromStdString(' ' + text).replace('\n', ' '));
}

std::string nameOf(QWidget* widget) {
    if (!widget)
        return "nothing";
    std::string name = widget->metaObject()->className();
    if (!widget->objectName().isEmpty())
        name += " " + widget->objectName().toStdString();
    if (auto* const row = Talo::ParameterRow::rowOf(widget))
        name += " in " + row->parameterName().toStdString();
    return name;
}
