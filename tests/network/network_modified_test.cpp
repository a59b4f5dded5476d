#include "NetworkFile.hpp"

#include <lattice/ChangeSignal.hpp>
#include <random>

namespace {

using Kolt::ChangeSignal;

/// A network whose changes are followed by a signal, as a program does that shows whether it is modified.
class FollowedNetwork : public NetworkFileTest {
protected:
    FollowedNetwork() {
        for (auto const& parameter : network_->objects().front()->parameters())
            parameter->setChangeSignal(signal_);
    }

    void set(QString const& name, char const* text, char const* pool = "draft") {
        QString error;
        EXPECT_TRUE(network_->setText(QStringLiteral("o.") + name, text, network_->findPool(pool), &error))
            << error.toStdString();
    }
    bool isModified() { return network_->isModifiedAfter(signal_->awaitNext()); }
    /// What a look at every value says.
    bool differs() const { return QString(network_->unsavedValues()).simplified() != "{ }"; }

    static QByteArray parameters() {
        QByteArray all;
        for (int number = 0; number < parameterCount; ++number)
            all += (number > 0 ? ",\n" : "") + (R"({ "name": "p)" + QByteArray::number(number)) +
                   R"(", "type": "int", "value": 1)" +
                   (number % 3 == 0   ? R"(, "values": { "draft": 2 } })"
                    : number % 3 == 1 ? R"(, "perPool": true })"
                                      : " }");
        return all;
    }

    static constexpr int parameterCount = 40;
    std::unique_ptr<Talo::Network> const network_ = network(withParameters(parameters()));
    std::shared_ptr<ChangeSignal> const signal_ = std::make_shared<ChangeSignal>([] {});
};

TEST_F(FollowedNetwork, IsNotModifiedAtTheStart) {
    EXPECT_FALSE(isModified());
}

TEST_F(FollowedNetwork, IsModifiedUntilEachValueIsAsItWas) {
    EXPECT_FALSE(isModified());
    set("p0", "5");
    EXPECT_TRUE(isModified());
    set("p2", "5");
    EXPECT_TRUE(isModified());
    set("p0", "2");
    EXPECT_TRUE(isModified());
    set("p2", "1");
    EXPECT_FALSE(isModified());
}

TEST_F(FollowedNetwork, IsModifiedByMoreThanTheSignalNotes) {
    EXPECT_FALSE(isModified());
    for (int number = 0; number < parameterCount; ++number)
        set(QStringLiteral("p%1").arg(number), "5", "final");
    EXPECT_TRUE(isModified());
    for (int number = 0; number < parameterCount; ++number)
        network_->findParameter(QStringLiteral("o.p%1").arg(number))->removeLocalValue(network_->findPool("final"));
    for (int number = 2; number < parameterCount; number += 3)
        set(QStringLiteral("p%1").arg(number), "1");
    EXPECT_FALSE(isModified());
}

TEST_F(FollowedNetwork, WhatNobodyWasToldIsMissedUntilAllIsLookedAt) {
    EXPECT_FALSE(isModified());
    auto const silent = network_->findParameter("o.p2")->ownValue();
    ASSERT_TRUE(silent->setValueFromText("7"));
    EXPECT_FALSE(isModified());
    EXPECT_TRUE(network_->isModified());
    set("p0", "5");
    EXPECT_TRUE(isModified());
    set("p0", "2");
    EXPECT_TRUE(isModified()) << "it is known from the last look";
    ASSERT_TRUE(silent->setValueFromText("1"));
    EXPECT_FALSE(isModified());
}

TEST_F(FollowedNetwork, IsAsSavedAfterItWasSaved) {
    set("p2", "5");
    EXPECT_TRUE(isModified());
    ASSERT_TRUE(network_->saveAs(path("saved.json"), nullptr));
    EXPECT_FALSE(isModified());
    set("p2", "1");
    EXPECT_TRUE(isModified()) << "the file holds another one now";
}

TEST_F(FollowedNetwork, AnObjectThatIsAddedIsFollowedToo) {
    EXPECT_FALSE(isModified());
    Kolt::ParameterPtr const added(new Kolt::VParameter("added", Kolt::makeValue(1)));
    added->setChangeSignal(signal_);
    network_->addObject("other", {added});
    EXPECT_FALSE(isModified());
    ASSERT_TRUE(network_->setText("other.added", "2", nullptr, nullptr));
    EXPECT_TRUE(isModified());
    network_->objects().back()->removeParameter(added);
    EXPECT_EQ(isModified(), differs());
}

TEST_F(FollowedNetwork, SaysTheSameAsALookAtAllValues) {
    std::mt19937 dice(1);
    auto const roll = [&dice](int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(dice); };
    int modified = 0;
    int asked = 0;
    for (int step = 0; step < 4000; ++step) {
        // Mostly a few values near the saved ones, sometimes so many that the signal cannot note them.
        int const changes = roll(50) == 0 ? parameterCount : 1 + roll(2);
        for (int change = 0; change < changes; ++change) {
            int const number = changes > 2 ? change : roll(4);
            auto const name = QStringLiteral("p%1").arg(number);
            bool const inDraft = roll(2) == 0;
            bool const isBack = changes > 2 || roll(6) > 0;
            set(name, !isBack ? "9" : number % 3 == 0 && inDraft ? "2" : "1", inDraft ? "draft" : "final");
        }
        if (step % 1000 == 700) {
            // These values are saved now. Later edits often write the same ones, so the network is often unmodified
            // again.
            for (int number = 0; number < 3; ++number)
                set(QStringLiteral("p%1").arg(number), number == 0 ? "2" : "1");
            ASSERT_TRUE(network_->saveAs(path("saved.json"), nullptr));
        }
        if (roll(20) == 0) {
            ASSERT_EQ(network_->isModified(), differs()) << step;
        }
        // Some changes come before anybody asks.
        if (roll(3) > 0) {
            bool const expected = differs();
            ASSERT_EQ(isModified(), expected) << step;
            modified += expected ? 1 : 0;
            ++asked;
        }
    }
    EXPECT_GT(modified, asked / 10);
    EXPECT_LT(modified, asked * 9 / 10);
}

} // namespace
