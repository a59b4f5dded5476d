#pragma once

#include <QFile>
#include <QString>
#include <random>
#include <string>

class QWidget;

/// The choices of a walk, event by event, and the log of what was chosen. Each line is written before its event goes
/// on, so the log also tells what crashed.
class WalkDice {
public:
    /// Writes to this file in place of what it contains; to none if the name is empty.
    explicit WalkDice(QString const& logFile);
    ~WalkDice();

    /// Begins a line, and the choices of an event with this seed.
    void begin(std::string const& line, unsigned seed);
    /// Adds to the line what was chosen, behind a blank.
    void note(std::string const& text);

    /// A number from 0 to `limit` - 1. REQUIRES: limit > 0.
    unsigned below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }
    /// An element of a list, which is not empty.
    template <typename List>
    auto const& oneOf(List const& list) {
        return *(std::begin(list) + below(static_cast<std::size_t>(std::end(list) - std::begin(list))));
    }

private:
    QFile log_;
    bool isLineOpen_ = false;
    std::mt19937 random_;
};

/// A widget for a log: its class, its name and the parameter of its row.
std::string nameOf(QWidget* widget);
