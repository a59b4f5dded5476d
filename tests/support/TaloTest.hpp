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

/// The base of every test. A test fails if, beyond what it asserts, it leaves behind
/// - a line on standard output that it did not take,
/// - a warning or critical message of Qt that it did not expect, or an expected one that did not come,
/// - a widget.
/// This is looked at when the whole fixture is gone, members of derived fixtures included. The program is linked to
/// talo_test_main or talo_test_main_without_application.
class TaloTest : public testing::Test {
protected:
    TaloTest();
    ~TaloTest() override;

    /// The lines printed so far, flushed first, without their newlines; they count as taken. An unfinished last line
    /// is a line, too.
    std::vector<std::string> takeOutput();

    /// The text that has reached standard output so far, not flushed first, newlines included; it counts as taken.
    std::string takeWrittenOutput();

    /// One warning or critical message of Qt that contains a match of this regular expression must come during the
    /// test, before or after this call.
    void expectQtWarning(std::string const& pattern);

    /// Messages that contain a match of this regular expression may come during the test and are no failure, as those
    /// that depend on when other programs do something.
    void allowQtWarning(std::string const& pattern);

private:
    OutputCapture output_;
    QtMessages messages_;
    // Left by earlier tests, which have failed for it.
    std::vector<QPointer<QWidget>> earlierWidgets_;
};

/// Handles events until the condition, a call without arguments, holds; false if it still does not after this time,
/// which is long, as a slow build on a busy machine takes its time.
template <typename Condition>
bool waitUntil(Condition&& condition, int milliseconds = 30000) {
    return QTest::qWaitFor(std::forward<Condition>(condition), milliseconds);
}
