#include "support/TestHost.hpp"

#include <bramble/Action.hpp>
#include <QMetaMethod>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <sys/resource.h>
#include <sys/stat.h>

using Kolt::ParameterPtr;
using ActionPtr = Tessera::StrongPtr<Kolt::VAction>;
using Values = Kolt::VParameter::Values;

namespace {

class qVActionTest : public PluginTest {
protected:
    /// An action that records the pool and the parameter for which it is fired.
    ActionPtr recordingAction() {
        return ActionPtr(new Kolt::VAction("start", [this](auto const& pool, auto const& parameter) {
            firedPools.push_back(pool);
            firedFor.push_back(parameter ? parameter->Name() : "none");
            if (reaction)
                reaction();
        }));
    }
    ParameterPtr actionParameter(std::string const& name = "render.start", Values values = Values::Shared) {
        return makeParameter(name, Kolt::makeValue(recordingAction()), {}, values);
    }
    static QPushButton& button(Kolt::Editor const& editor) { return dynamic_cast<QPushButton&>(*editor.widget); }
    static void click(Kolt::Editor const& editor) { QTest::mouseClick(editor.widget, Qt::LeftButton); }
    static void setProperty(ParameterPtr const& parameter, std::string const& name, std::string const& text) {
        parameter->setProperty(name, Kolt::makeValue(text), nullptr, nullptr, nullptr);
    }
    /// The path of a new picture file of this colour.
    std::string pictureFile(QString const& name, Qt::GlobalColor colour) {
        QPixmap picture(16, 16);
        picture.fill(colour);
        auto const path = folder.filePath(name);
        EXPECT_TRUE(picture.save(path, "PNG"));
        return path.toStdString();
    }
    static QColor iconColour(Kolt::Editor const& editor) {
        return button(editor).icon().pixmap(16, 16).toImage().pixelColor(8, 8);
    }

    void TearDown() override {
        firedPools.clear();
        PluginTest::TearDown();
    }

    QTemporaryDir folder;
    std::vector<Kolt::PoolPtr> firedPools;
    std::vector<std::string> firedFor;
    std::function<void()> reaction;
};

} // namespace

TEST_F(qVActionTest, IsAPushButtonWithOneSlot) {
    auto const editor = open(actionParameter());
    ASSERT_TRUE(editor.widget);
    auto const* const meta = editor.widget->metaObject();
    EXPECT_STREQ(meta->className(), "Kolt::qVAction");
    EXPECT_STREQ(meta->superClass()->className(), "QPushButton");
    ASSERT_EQ(meta->methodCount() - meta->methodOffset(), 1);
    auto const slot = meta->method(meta->methodOffset());
    EXPECT_EQ(slot.methodType(), QMetaMethod::Slot);
    EXPECT_EQ(slot.methodSignature(), QByteArray("activated(bool)"));
    EXPECT_NE(editor.widget->qt_metacast("VInputValue<Tessera::StrongPtr<VAction>>"), nullptr);
    EXPECT_EQ(editor.choice.creator.strong()->preferences()->names(), Kolt::VCreationPreferences::Names{"QT"});
    EXPECT_FALSE(button(editor).isCheckable());
}

TEST_F(qVActionTest, TheLabelIsTheNameAfterTheLastDot) {
    std::pair<char const*, char const*> const labels[] = {
        {"render.start", "start"}, {"start", "start"}, {"scene.render.Überblick", "Überblick"}, {"render.", ""}};
    for (auto const& [name, label] : labels)
        EXPECT_EQ(button(open(actionParameter(name))).text(), QString::fromUtf8(label)) << name;
}

TEST_F(qVActionTest, AnAmpersandOfTheNameIsALetterOfTheLabel) {
    auto const editor = open(actionParameter("render.mix&match"));
    EXPECT_EQ(button(editor).text(), "mix&&match");
    EXPECT_TRUE(button(editor).shortcut().isEmpty());
}

TEST_F(qVActionTest, WithoutAParameterTheLabelIsDoit) {
    auto const creator = qtCreator(Tessera::Typename(typeid(ActionPtr)), "action");
    auto const made = creator->create(nullptr, parent, &pools);
    EXPECT_EQ(dynamic_cast<QPushButton&>(*made.first).text(), "[doit]");
}

TEST_F(qVActionTest, IconAndToolTipComeFromTheProperties) {
    auto const parameter = actionParameter();
    setProperty(parameter, "icon", pictureFile(QString::fromUtf8("grün.png"), Qt::green));
    setProperty(parameter, "tooltip", "Größer");
    auto const editor = open(parameter);
    EXPECT_EQ(iconColour(editor), QColor(Qt::green));
    EXPECT_EQ(editor.widget->toolTip(), QString::fromUtf8("Größer"));
}

TEST_F(qVActionTest, IconAndToolTipFollowTheProperties) {
    auto const parameter = actionParameter();
    auto const editor = open(parameter);
    EXPECT_TRUE(button(editor).icon().isNull());
    EXPECT_TRUE(editor.widget->toolTip().isEmpty());
    setProperty(parameter, "icon", pictureFile("first.png", Qt::blue));
    EXPECT_EQ(iconColour(editor), QColor(Qt::blue));
    setProperty(parameter, "tooltip", "Starts");
    EXPECT_EQ(editor.widget->toolTip(), "Starts");
    setProperty(parameter, "icon", pictureFile("second.png", Qt::red));
    EXPECT_EQ(iconColour(editor), QColor(Qt::red));
}

TEST_F(qVActionTest, APlainValueChangeShowsThePropertiesToo) {
    auto const parameter = actionParameter();
    auto const editor = open(parameter);
    // The button is the source of this change, so it is not notified.
    parameter->setProperty("tooltip", Kolt::makeValue(std::string("Starts")),
                           Tessera::WeakPtr<Kolt::ValueNotifier>(editor.input), nullptr, nullptr);
    EXPECT_TRUE(editor.widget->toolTip().isEmpty());
    parameter->notifyValueChange(parameter->ownValue(), firstPool, std::string(), nullptr, nullptr, nullptr);
    EXPECT_EQ(editor.widget->toolTip(), "Starts");
}

TEST_F(qVActionTest, ThePropertyMapOfANotificationIsNotRead) {
    auto const parameter = actionParameter();
    auto const editor = open(parameter);
    Kolt::ValueMap other;
    other.setValue("tooltip", Kolt::makeValue(std::string("Other")));
    parameter->notifyValueChange(parameter->ownValue(), firstPool, std::string(), nullptr, nullptr, &other);
    EXPECT_TRUE(editor.widget->toolTip().isEmpty());
}

TEST_F(qVActionTest, AnIconThatCannotBeLoadedIsNotReported) {
    auto const parameter = actionParameter();
    setProperty(parameter, "icon", folder.filePath("missing.png").toStdString());
    auto const editor = open(parameter);
    EXPECT_TRUE(button(editor).icon().isNull());
    QFile text(folder.filePath("text.png"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("no picture");
    text.close();
    setProperty(parameter, "icon", text.fileName().toStdString());
    EXPECT_TRUE(button(editor).icon().isNull());
    EXPECT_TRUE(warnings.texts.empty());
}

TEST_F(qVActionTest, AnIconThatCannotBeLoadedLeavesTheOneThatIsShown) {
    auto const parameter = actionParameter();
    setProperty(parameter, "icon", pictureFile("good.png", Qt::green));
    auto const editor = open(parameter);
    for (auto const& bad : {folder.filePath("missing.png").toStdString(), std::string(), std::string("/dev/null")}) {
        setProperty(parameter, "icon", bad);
        EXPECT_EQ(iconColour(editor), QColor(Qt::green)) << bad;
    }
}

TEST_F(qVActionTest, AnIconThatIsNoFileIsNotWaitedFor) {
    auto const pipe = folder.filePath("pipe.png").toStdString();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    auto const parameter = actionParameter();
    setProperty(parameter, "icon", pipe);
    auto const editor = open(parameter);
    EXPECT_TRUE(button(editor).icon().isNull());
    setProperty(parameter, "icon", "/dev/zero");
    EXPECT_TRUE(button(editor).icon().isNull());
}

TEST_F(qVActionTest, ALargePictureIsReadInTheSizeOfAnIcon) {
    QImage wide(2000, 1000, QImage::Format_RGB32);
    wide.fill(Qt::green);
    ASSERT_TRUE(wide.save(folder.filePath("wide.png")));
    auto const parameter = actionParameter();
    setProperty(parameter, "icon", folder.filePath("wide.png").toStdString());
    auto const editor = open(parameter);
    auto const icon = button(editor).icon();
    EXPECT_EQ(icon.availableSizes(), QList<QSize>{QSize(256, 128)});
    EXPECT_EQ(icon.pixmap(256, 128).toImage().pixelColor(5, 5), QColor(Qt::green));
}

TEST_F(qVActionTest, ADrawingIsAnIconUnlessItNamesOtherFiles) {
    auto const open = [this](char const* name, QByteArray const& content, QByteArray const& head = {}) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(head + R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" )" +
                   R"(width="16" height="16">)" + content + "</svg>");
        file.close();
        auto const parameter = actionParameter();
        setProperty(parameter, "icon", file.fileName().toStdString());
        return PluginTest::open(parameter);
    };
    EXPECT_EQ(iconColour(open("plain.svg", R"(<rect width="16" height="16" fill="#0f0"/>)")), QColor(Qt::green));
    EXPECT_EQ(iconColour(open("within.svg", R"(<defs><rect id="a" width="16" height="16" fill="#00f"/></defs>)"
                                            R"(<use xlink:href="#a"/>)")),
              QColor(Qt::blue));
    auto const other = "\"" + QByteArray::fromStdString(pictureFile("other.png", Qt::red)) + "\"";
    EXPECT_TRUE(
        button(open("image.svg", R"(<image width="16" height="16" xlink:href=)" + other + "/>")).icon().isNull());
    EXPECT_TRUE(button(open("style.svg", R"(<rect width="16" height="16"/>)", "<?xml-stylesheet href=" + other + "?>"))
                    .icon()
                    .isNull());
}

TEST_F(qVActionTest, AHugePictureInFewBytesTakesNoMemory) {
    // A bitmap with one bit for each pixel; with 32 bits it would take 1.6 GB.
    QImage huge(20'000, 20'000, QImage::Format_Mono);
    huge.fill(0);
    ASSERT_TRUE(huge.save(folder.filePath("huge.png")));
    huge = QImage();
    ASSERT_LT(QFileInfo(folder.filePath("huge.png")).size(), 100'000);
    rusage before{};
    getrusage(RUSAGE_SELF, &before);
    auto const parameter = actionParameter();
    setProperty(parameter, "icon", folder.filePath("huge.png").toStdString());
    auto const editor = open(parameter);
    rusage after{};
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 100'000) << "kilobytes";
    EXPECT_TRUE(button(editor).icon().isNull());
}

TEST_F(qVActionTest, AChangedPictureIsReadAgain) {
    auto const file = pictureFile("icon.png", Qt::blue);
    auto const parameter = actionParameter();
    setProperty(parameter, "icon", file);
    auto const editor = open(parameter);
    EXPECT_EQ(iconColour(editor), QColor(Qt::blue));
    QImage other(32, 32, QImage::Format_RGB32);
    other.fill(Qt::red);
    ASSERT_TRUE(other.save(QString::fromStdString(file)));
    setProperty(parameter, "icon", file);
    EXPECT_EQ(iconColour(editor), QColor(Qt::red));
}

TEST_F(qVActionTest, PropertiesThatAreNoTextsAreIgnored) {
    auto const parameter = actionParameter();
    parameter->setProperty("icon", Kolt::makeValue(1), nullptr, nullptr, nullptr);
    parameter->setProperty("tooltip", Kolt::makeValue(2.5), nullptr, nullptr, nullptr);
    auto const editor = open(parameter);
    EXPECT_TRUE(button(editor).icon().isNull());
    EXPECT_TRUE(editor.widget->toolTip().isEmpty());
}

TEST_F(qVActionTest, AClickFiresOnceInTheCurrentPool) {
    auto const parameter = actionParameter("render.stop");
    auto const editor = open(parameter);
    EXPECT_TRUE(firedPools.empty());
    click(editor);
    pools.use(secondPool);
    click(editor);
    EXPECT_EQ(firedPools, (std::vector<Kolt::PoolPtr>{firstPool, secondPool}));
    EXPECT_EQ(firedFor, (std::vector<std::string>{"render.stop", "render.stop"}));
}

TEST_F(qVActionTest, TheSpaceKeyFires) {
    auto const parameter = actionParameter();
    auto const editor = open(parameter);
    QTest::keyClick(editor.widget, Qt::Key_Space);
    EXPECT_EQ(firedFor, std::vector<std::string>{"render.start"});
}

TEST_F(qVActionTest, AClickWritesNothing) {
    auto const parameter = actionParameter();
    RecordingNotifier recorder;
    parameter->addNotifier(Tessera::WeakPtr<Kolt::ValueNotifier>(&recorder));
    auto const editor = open(parameter);
    click(editor);
    ASSERT_EQ(firedFor.size(), 1U);
    EXPECT_TRUE(recorder.values.empty());
    EXPECT_EQ(recorder.propertyChanges, 0);
    EXPECT_EQ(parameter->ownValue()->age(), 0U);
    EXPECT_TRUE(Kolt::UndoHistory::theHistory().steps().empty());
}

TEST_F(qVActionTest, AClickReadsThePoolsValueAndMakesItWhereItIsMissing) {
    auto const parameter = actionParameter("render.start", Values::PerPool);
    auto const editor = open(parameter);
    EXPECT_FALSE(parameter->getLocalValue(firstPool, std::string(), false));
    click(editor);
    auto const local = parameter->getLocalValue(firstPool, std::string(), false);
    ASSERT_TRUE(local);
    EXPECT_EQ(local->age(), 0U);
    EXPECT_EQ(firedFor.size(), 1U);
}

TEST_F(qVActionTest, TheActionIsTheOneAtConstruction) {
    auto const parameter = actionParameter();
    auto const editor = open(parameter);
    int others = 0;
    ActionPtr const other(new Kolt::VAction("other", [&](auto const&, auto const&) { ++others; }));
    EXPECT_TRUE(Kolt::setParameterValue(*parameter, other, firstPool, std::string(), false, nullptr, nullptr));
    click(editor);
    EXPECT_EQ(firedFor.size(), 1U);
    EXPECT_EQ(others, 0);
}

TEST_F(qVActionTest, WithoutAnActionAtConstructionNothingIsFired) {
    auto const empty = makeParameter("render.start", Kolt::makeValue(ActionPtr()));
    auto const editor = open(empty);
    EXPECT_TRUE(Kolt::setParameterValue(*empty, recordingAction(), firstPool, std::string(), false, nullptr, nullptr));
    click(editor);
    EXPECT_TRUE(firedFor.empty());

    auto const number =
        makeParameter("render.count", Kolt::makeValue(3), {}, Values::Shared, Tessera::Typename(typeid(ActionPtr)));
    auto const otherType = open(number);
    ASSERT_TRUE(otherType.widget);
    click(otherType);
    EXPECT_TRUE(firedFor.empty());
    EXPECT_EQ(number->ownValue()->Text(), "3");
}

TEST_F(qVActionTest, WithoutAPoolNothingHappens) {
    auto parameter = actionParameter();
    auto const editor = open(parameter);
    click(editor);
    pools.use(nullptr);
    click(editor);
    EXPECT_EQ(firedFor.size(), 1U) << "the pool of an earlier click does not stand in";
    parameter.reset();
    click(editor);
    EXPECT_TRUE(takeOutput().empty());
}

TEST_F(qVActionTest, ThePoolOfTheLastClickIsKeptUntilTheNext) {
    auto const parameter = actionParameter();
    Kolt::PoolPtr passing(new Kolt::ValuePool("passing"));
    Tessera::WeakPtr<Kolt::ValuePool> const kept(passing);
    auto const editor = open(parameter);
    pools.use(passing);
    click(editor);
    pools.use(secondPool);
    passing.reset();
    firedPools.clear();
    EXPECT_TRUE(kept.alive());
    click(editor);
    EXPECT_FALSE(kept.alive());
}

TEST_F(qVActionTest, WithoutItsParameterNothingIsFired) {
    auto parameter = actionParameter();
    auto const action = Kolt::valueOr(parameter->ownValue(), ActionPtr());
    auto const editor = open(parameter);
    parameter.reset();
    click(editor);
    EXPECT_TRUE(firedFor.empty());
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
}

TEST_F(qVActionTest, TheActionMayDeleteTheParameter) {
    auto parameter = actionParameter();
    auto const editor = open(parameter);
    reaction = [&] { parameter.reset(); };
    click(editor);
    EXPECT_EQ(firedFor.size(), 1U);
    EXPECT_TRUE(editor.widget);
    EXPECT_EQ(takeOutput(), std::vector<std::string>{missingOwnerLine});
}

TEST_F(qVActionTest, TheActionMayDeleteTheButton) {
    auto const parameter = actionParameter();
    auto const editor = open(parameter);
    reaction = [&] { delete editor.widget; };
    click(editor);
    EXPECT_EQ(firedFor.size(), 1U);
    EXPECT_FALSE(editor.widget);
    EXPECT_FALSE(editor.input);
}

TEST_F(qVActionTest, TheActionMayDeleteThePanelAndTheParameter) {
    auto parameter = actionParameter();
    auto const editor = open(parameter);
    reaction = [&] {
        parameter.reset();
        delete parent;
    };
    click(editor);
    EXPECT_EQ(firedFor.size(), 1U);
    EXPECT_FALSE(editor.widget);
    EXPECT_TRUE(takeOutput().empty()) << "there is no button left whose parameter could be missed";
}
