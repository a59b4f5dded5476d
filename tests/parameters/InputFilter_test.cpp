#include "support/TaloTest.hpp"

#include <parameters/input/InputFilter.hpp>
#include <parameters/input/WheelGuard.hpp>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTranslator>

namespace {

class InputFilterTest : public TaloTest {
protected:
    std::shared_ptr<Talo::InputFilter> filter = Talo::InputFilter::shared();
};

} // namespace

TEST_F(InputFilterTest, IsSharedByAllHolders) {
    auto const* const first = filter.get();
    EXPECT_EQ(Talo::InputFilter::shared().get(), first);
    QPointer<QObject> const watched(filter.get());
    QSpinBox spinBox;
    auto* const guard = new Talo::WheelGuard(&spinBox);
    filter.reset();
    EXPECT_TRUE(watched) << "the guard still needs it";
    delete guard;
    EXPECT_FALSE(watched);
}

TEST_F(InputFilterTest, HearsOfAnotherLanguageOnce) {
    QSignalSpy const heard(filter.get(), &Talo::InputFilter::languageChanged);
    QWidget window;
    window.show();
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/translations/talo_parameters_de.qm")));
    QCoreApplication::installTranslator(&translator);
    EXPECT_TRUE(waitUntil([&] { return !heard.isEmpty(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(heard.count(), 1) << "the windows hear of it, too";
}
