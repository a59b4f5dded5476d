#include "support/TaloTest.hpp"
#include <atomic>
#include <lattice/ChangeSignal.hpp>
#include <lattice/Parameter.hpp>
#include <memory>
#include <thread>
#include <vector>

namespace {

using Kolt::ChangeSignal;
using Kolt::makeValue;
using Kolt::ParameterPtr;
using Kolt::VParameter;

class ChangeSignalTest : public TaloTest {
protected:
    void change(ParameterPtr const& parameter, Kolt::ValueMap const* properties = nullptr) {
        parameter->notifyValueChange(parameter->ownValue(), nullptr, "", {}, nullptr, properties);
    }
    ParameterPtr made(char const* name) {
        ParameterPtr const parameter(new VParameter(name, makeValue(1)));
        parameter->setChangeSignal(signal_);
        return parameter;
    }

    std::atomic<int> calls_{0};
    std::shared_ptr<ChangeSignal> const signal_ = std::make_shared<ChangeSignal>([this] { ++calls_; });
};

TEST_F(ChangeSignalTest, TellsTheFirstChangeOfAnyParameter) {
    auto const one = made("one");
    auto const other = made("other");
    change(one);
    EXPECT_EQ(calls_, 1);
    change(other);
    EXPECT_EQ(calls_, 1) << "nobody asked again";
    signal_->awaitNext();
    EXPECT_EQ(calls_, 1) << "nothing has changed since";
    change(other);
    EXPECT_EQ(calls_, 2);
}

TEST_F(ChangeSignalTest, NotesWhichParametersHaveChanged) {
    auto const one = made("one");
    auto other = made("other");
    EXPECT_TRUE(signal_->awaitNext().value().empty());
    change(one);
    change(other);
    change(one);
    auto const changed = signal_->awaitNext().value();
    ASSERT_EQ(changed.size(), 2U);
    EXPECT_EQ(changed[0].strong().get(), one.get());
    EXPECT_EQ(changed[1].strong().get(), other.get());
    other.reset();
    EXPECT_FALSE(changed[1].alive()) << "nobody keeps it alive";
    EXPECT_TRUE(signal_->awaitNext().value().empty());
}

TEST_F(ChangeSignalTest, NotesOnlySoMany) {
    std::vector<ParameterPtr> many;
    for (std::size_t number = 0; number < ChangeSignal::mostNoted; ++number)
        many.push_back(made("each"));
    for (auto const& each : many)
        change(each);
    EXPECT_EQ(signal_->awaitNext().value().size(), many.size());
    for (auto const& each : many)
        change(each);
    auto const oneMore = made("one more");
    change(oneMore);
    change(many.front());
    EXPECT_FALSE(signal_->awaitNext());
    change(oneMore);
    EXPECT_EQ(signal_->awaitNext().value().size(), 1U);
}

TEST_F(ChangeSignalTest, TellsNoProperties) {
    auto const parameter = made("one");
    parameter->setProperty("label", makeValue(std::string("One")), {}, nullptr, {});
    EXPECT_EQ(calls_, 0);
}

TEST_F(ChangeSignalTest, TellsNothingOfWhatNobodyEdits) {
    auto const parameter = made("one");
    parameter->setEdited(false);
    change(parameter);
    EXPECT_EQ(calls_, 0);
    parameter->setEdited(true);
    change(parameter);
    EXPECT_EQ(calls_, 1);
}

TEST_F(ChangeSignalTest, IsTakenFromAParameter) {
    auto const parameter = made("one");
    parameter->setChangeSignal(nullptr);
    change(parameter);
    EXPECT_EQ(calls_, 0);
}

TEST_F(ChangeSignalTest, CallsNobodyWhenItWasStopped) {
    auto const parameter = made("one");
    signal_->stop();
    change(parameter);
    EXPECT_EQ(calls_, 0);
}

TEST_F(ChangeSignalTest, IsRaisedByManyThreadsAndStoppedMeanwhile) {
    constexpr int threadCount = 4;
    constexpr int rounds = 2'000;
    std::atomic<bool> isStopped{false};
    std::atomic<bool> isCalledTooLate{false};
    ChangeSignal signal([&] {
        if (isStopped)
            isCalledTooLate = true;
        ++calls_;
    });
    auto const parameter = made("one");
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back([&] {
            for (int round = 0; round < rounds; ++round) {
                signal.raise(*parameter);
                signal.awaitNext();
            }
        });
    while (calls_ == 0)
        std::this_thread::yield();
    signal.stop();
    isStopped = true;
    for (auto& thread : threads)
        thread.join();
    EXPECT_FALSE(isCalledTooLate);
}

} // namespace
