// Each call of the system that writes a file fails once, in turn. The file is the old or the new one then, whole, and
// what the user reads is true.

#include "support/FileFaults.hpp"
#include "UnsavedChangesTest.hpp"

#include <fractal/engine/Picture.hpp>
#include <network/PresetFile.hpp>
#include <panel/window/Recovery.hpp>
#include <QImageReader>

using testing::HasSubstr;

namespace {

/// Something that is saved in one file.
struct Saved {
    QString file;
    /// Writes the file. Returns the reason if that fails.
    std::function<QString()> save;
    /// Whether the file is a whole new one.
    std::function<bool()> isNew;
};

class FileFaultsTest : public UnsavedChangesTest {
protected:
    FileFaultsTest() { QDir(folder.path()).mkdir(QStringLiteral("saved")); }

    QString place(char const* name) const { return folder.filePath(QLatin1String("saved/") + QLatin1String(name)); }
    QStringList files() const {
        return QDir(folder.filePath(QStringLiteral("saved"))).entryList(QDir::Files | QDir::Hidden);
    }

    /// Puts the old file there, or none if there is nothing in it.
    static void putOld(QString const& file, QByteArray const& old) {
        QFile::remove(file);
        QFile target(file);
        ASSERT_TRUE(old.isEmpty() || (target.open(QIODevice::WriteOnly) && target.write(old) == old.size()));
    }

    void expectOldOrNew(Saved const& saved, QByteArray const& old, QString const& reason) {
        if (reason.isEmpty()) {
            EXPECT_TRUE(saved.isNew());
            EXPECT_EQ(files().size(), 1);
            return;
        }
        EXPECT_THAT(reason.toStdString(), HasSubstr("Input/output error"));
        EXPECT_EQ(QFile::exists(saved.file), !old.isEmpty());
        EXPECT_EQ(files().size(), old.isEmpty() ? 0 : 1) << qPrintable(files().join(' '));
        if (QFile::exists(saved.file)) {
            EXPECT_EQ(bytesOf(saved.file), old);
        }
    }

    /// Lets each call fail. Returns the names of those that made the saving fail.
    std::set<std::string> failEachCall(Saved const& saved, QByteArray const& old) {
        constexpr int most = 10000;
        std::set<std::string> refused;
        for (int number = 1; number < most && !HasFailure(); ++number) {
            putOld(saved.file, old);
            QString reason;
            {
                FileFault const fault(number);
                reason = saved.save();
            }
            auto const call = FileFault::failedCall();
            SCOPED_TRACE("call " + std::to_string(number) + ", " + call);
            if (call.empty()) {
                EXPECT_EQ(reason, QString());
                EXPECT_TRUE(saved.isNew());
                return refused;
            }
            expectOldOrNew(saved, old, reason);
            if (!reason.isEmpty())
                refused.insert(call);
        }
        ADD_FAILURE() << "saving does not come to its end";
        return refused;
    }

    void expectOldOrNewForEachCall(Saved const& saved) {
        auto const beside = failEachCall(saved, QByteArray());
        EXPECT_THAT(beside, testing::IsSupersetOf({"write", "fdatasync"}));
        auto const over = failEachCall(saved, "what was there before");
        EXPECT_THAT(over, testing::IsSupersetOf({"write", "fdatasync", "rename"}));
    }
};

} // namespace

TEST_F(FileFaultsTest, ANetworkIsOldOrNew) {
    auto const& network = *window->network();
    auto const file = place("network.json");
    expectOldOrNewForEachCall({file,
                               [&] {
                                   QString error;
                                   return network.save(file, &error) ? QString() : error;
                               },
                               [&] { return bool(Talo::Network::load(file).network); }});
}

TEST_F(FileFaultsTest, PresetsAreOldOrNew) {
    auto const file = place("presets");
    Talo::PresetFile::Preset const preset{
        {"pump", {}}, "quiet", {{"level", QJsonObject{{"type", "int"}, {"value", 3}}}}};
    auto const old = QByteArray("{\"presets\": []}\n");
    Saved const saved{file, [&] { return Talo::PresetFile(file).put(preset); },
                      [&] {
                          Talo::PresetFile presets(file);
                          return presets.read().isEmpty() && presets.find(preset.scope, preset.name) != nullptr;
                      }};
    EXPECT_THAT(failEachCall(saved, QByteArray()), testing::IsSupersetOf({"write", "fdatasync"}));
    EXPECT_THAT(failEachCall(saved, old), testing::IsSupersetOf({"write", "fdatasync", "rename"}));
}

TEST_F(FileFaultsTest, APictureIsOldOrNew) {
    auto const file = place("picture.png");
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    expectOldOrNewForEachCall({file, [&] { return Fractal::Picture::writePng(image, file); },
                               [&] { return QImageReader(file).read().convertToFormat(image.format()) == image; }});
}

TEST_F(FileFaultsTest, ADocumentIsOldOrNew) {
    auto const file = place("picture.pdf");
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    expectOldOrNewForEachCall({file, [&] { return Fractal::Picture::writePdf(image, {}, file); },
                               [&] { return bytesOf(file).startsWith("%PDF") && bytesOf(file).endsWith("%%EOF\n"); }});
}

TEST_F(FileFaultsTest, TheRecoveryFileIsOldOrNewAndTheUserReadsWhy) {
    edit();
    Panel::Recovery recovery(window->document(), folder.filePath(QStringLiteral("states")));
    recovery.write();
    auto const states = QDir(folder.filePath(QStringLiteral("states")));
    auto const kept = states.entryList({QStringLiteral("*.json")});
    ASSERT_EQ(kept.size(), 1);
    auto const file = states.filePath(kept[0]);
    auto const whole = bytesOf(file);
    QString reason;
    QObject::connect(&recovery, &Panel::Recovery::failed, &recovery, [&](QString const& said) { reason = said; });
    auto const callsOfWriting = [&] {
        FileFault const fault(0);
        recovery.write();
        return FileFault::count();
    };
    int const calls = callsOfWriting();
    ASSERT_GT(calls, 3);
    for (int number = 1; number <= calls; ++number) {
        FileFault const again(number);
        recovery.write();
        EXPECT_EQ(bytesOf(file), whole) << "call " << number;
    }
    EXPECT_THAT(reason.toStdString(), HasSubstr("Input/output error"));
}

TEST_F(FileFaultsTest, APanelThatCouldNotSaveStaysModified) {
    edit();
    ASSERT_TRUE(isMarked());
    auto const before = bytesOf(file());
    auto const saves = [&](int number, QString& error) {
        FileFault const fault(number);
        return window->saveValues(file(), &error);
    };
    int refused = 0;
    QString error;
    while (!saves(refused + 1, error) && refused < 1000) {
        ++refused;
        EXPECT_THAT(error.toStdString(), HasSubstr("Input/output error")) << FileFault::failedCall();
        EXPECT_EQ(bytesOf(file()), before);
        EXPECT_TRUE(isMarked());
    }
    EXPECT_GE(refused, 3);
    EXPECT_NE(bytesOf(file()), before);
    EXPECT_TRUE(isUnmarked());
}
