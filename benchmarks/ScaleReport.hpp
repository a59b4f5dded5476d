#pragma once

#include <functional>
#include <memory>
#include <network/Network.hpp>
#include <QTemporaryDir>
#include <string>

/// How many objects, entries or slots the largest samples have.
constexpr int largeSize = 100'000;
/// The greatest exponent of the growth of a job with the size of its sample.
constexpr double growthGoal = 1.1;

/// Prints a line for each job, and remembers whether one is above its goal.
class ScaleReport {
public:
    /// A figure with its goal and unit; a number without a unit has an empty one.
    void add(std::string const& job, double figure, double goal, std::string const& unit = "ms");
    /// The ratio of two times in milliseconds: what the panel takes, and what bare Qt takes.
    void compare(std::string const& job, double ours, double bare, double goal);
    /// A figure without a goal, in milliseconds.
    static void note(std::string const& job, double milliseconds);
    /// Whether no figure is above its goal.
    bool allMet() const { return allMet_; }

private:
    bool allMet_ = true;
};

/// Milliseconds of processor time of the quickest of some rounds of a job, which gets the number of its round.
double quickestTime(int rounds, std::function<void(int round)> const& job);

/// Writes a file with this text and gives its name; ends the program if that fails.
QString written(QTemporaryDir const& folder, QString const& name, QByteArray const& json);
/// Loads a network; ends the program if that fails.
std::unique_ptr<Talo::Network> loaded(QString const& file);
/// A list of so many texts in JSON, each with a number behind `before`.
QByteArray listOfTexts(int count, char const* before);
/// A network with a multiple selection of these entries, a list in JSON, that are all chosen.
QByteArray choiceJson(QByteArray const& entries);
/// A network with this text, in an editor of several lines.
QByteArray textJson(QByteArray const& text);

/// Networks of 1,000, 10,000 and 100,000 objects.
void reportObjects(ScaleReport& report);
/// Networks with 100,000 pools, slots, chosen entries, or parameters of one object.
void reportParts(ScaleReport& report);
/// Whether a network of 80,000 values knows that one of them was edited.
void reportModified(ScaleReport& report);
/// Selections of 100,000 texts.
void reportLists(ScaleReport& report);
/// A text of a megabyte in the panel.
void reportTexts(ScaleReport& report);
/// Keys in a list of 100,000 texts.
void reportKeys(ScaleReport& report);
