#pragma once

#include "support/OutputCapture.hpp"
#include "support/QtMessages.hpp"
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QPointer>
#include <QtTest>
#include <QWidget>
#include <string>
#include <vector>

/// The base of every test. A test fails if, beyond its assertions, it leaves behind
/// - a line on standard output that it did not take,
/// - a warning or critical message of Qt that it did not expect, or an expected one that did not come,
/// - a widget.
/// This is checked after the destructors of derived fixtures have run. The program is linked to talo_test_main or
/// talo_test_main_without_application.
class TaloTest : public testing::Test {
protected:
    TaloTest();
    ~TaloTest() override;

    /// Flushes, and returns the lines printed since the last call, without their newlines. An unfinished last line
    /// counts as a line.
    std::vector<std::string> takeOutput();

    /// Returns the text that has reached standard output since the last call, including newlines, without flushing.
    std::string takeWrittenOutput();

    /// Requires one warning or critical message of Qt that contains a match of this regular expression during the test,
    /// before or after this call.
    void expectQtWarning(std::string const& pattern);

    /// Permits messages that contain a match of this regular expression, for example those that depend on the timing of
    /// other programs.
    void allowQtWarning(std::string const& pattern);

private:
    OutputCapture output_;
    QtMessages messages_;
    // Widgets that earlier tests left; those tests have failed for it.
    std::vector<QPointer<QWidget>> earlierWidgets_;
};

/// Processes events until the condition, a callable without arguments, returns true. Returns false on a timeout, which
/// is long because slow builds on busy machines take their time.
template <typename Condition>
bool waitUntil(Condition&& condition, int milliseconds = 30000) {
    return QTest::qWaitFor(std::forward<Condition>(condition), milliseconds);
}
