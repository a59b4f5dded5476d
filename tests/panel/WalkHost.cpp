#include "WalkHost.hpp"

#include "WalkTime.hpp"

#include <gtest/gtest.h>
#include <QApplication>
#include <QDockWidget>

WalkHost::WalkHost(Panel::MainWindow& window, Panel::Plugins& plugins, WalkDice& dice, Write write)
    : window_(window),
      plugins_(plugins),
      dice_(dice),
      write_(std::move(write)),
      palette_(QApplication::palette()),
      font_(QApplication::font()) {}

WalkHost::~WalkHost() {
    restoreLook();
}

void WalkHost::act() {
    static constexpr Action actions[] = {&WalkHost::chooseObject,    &WalkHost::chooseObject,   &WalkHost::chooseObject,
                                         &WalkHost::choosePool,      &WalkHost::filter,         &WalkHost::write,
                                         &WalkHost::write,           &WalkHost::write,          &WalkHost::write,
                                         &WalkHost::toggleRawValues, &WalkHost::toggleAdvanced, &WalkHost::showDock,
                                         &WalkHost::closeView,       &WalkHost::resize,         &WalkHost::wait};
    // A user who turns to something else closes an open popup.
    while (auto* const popup = QApplication::activePopupWidget())
        popup->close();
    auto const rare = dice_.below(60);
    if (rare == 0)
        reloadPlugins();
    else if (rare == 1)
        changeLook();
    else
        (this->*dice_.oneOf(actions))();
}

void WalkHost::chooseObject() {
    auto const name = dice_.oneOf(window_.network()->objects())->Name();
    dice_.note("show " + name);
    window_.showObject(QString::fromStdString(name));
}

void WalkHost::choosePool() {
    auto const name = dice_.oneOf(window_.network()->pools())->Name();
    dice_.note("pool " + name);
    window_.choosePool(QString::fromStdString(name));
}

void WalkHost::filter() {
    static constexpr char const* words[] = {"", "", "", "a", "formula", "1", "true", "nothing like it", "e o"};
    std::string const chosen = dice_.oneOf(words);
    dice_.note("filter \"" + chosen + "\"");
    window_.setFilter(QString::fromStdString(chosen));
}

void WalkHost::write() {
    auto const object = dice_.oneOf(window_.network()->objects());
    auto const parameter = dice_.oneOf(object->parameters());
    auto const name = window_.network()->nameOf(parameter);
    // Only the objects themselves write the other parameters.
    if (!parameter->isEdited())
        return;
    auto& texts = texts_[name];
    auto const pool = window_.pools().pool();
    if (texts.empty())
        texts.push_back(parameter->ownValue()->Text());
    texts.push_back(parameter->effectiveValue(pool)->Text());
    auto text = QString::fromStdString(dice_.oneOf(texts));
    if (dynamic_cast<Kolt::VValue<int> const*>(parameter->ownValue().get()) ||
        dynamic_cast<Kolt::VValue<double> const*>(parameter->ownValue().get()))
        text = QString::number(dice_.below(40));
    dice_.note("write " + name.toStdString() + " " + text.simplified().toStdString());
    write_(name, text);
}

void WalkHost::toggleRawValues() {
    dice_.note("raw values");
    window_.setRawValuesShown(!window_.rawValuesShown());
}

void WalkHost::toggleAdvanced() {
    dice_.note("advanced");
    window_.setAdvancedShown(!window_.advancedShown());
}

void WalkHost::reloadPlugins() {
    QString error;
    bool const unloads = !plugins_.loadedFiles().isEmpty() && dice_.below(2) == 0;
    dice_.note(unloads ? "unload" : "reload");
    EXPECT_TRUE(unloads ? plugins_.unload(&error) : plugins_.reload(&error)) << qPrintable(error);
}

void WalkHost::tryPlugins(bool unload) {
    dice_.note(unload ? "unload in a dialog" : "reload in a dialog");
    QString error;
    static_cast<void>(unload ? plugins_.unload(&error) : plugins_.reload(&error));
}

void WalkHost::showDock() {
    auto const docks = window_.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    auto* const dock = dice_.oneOf(docks);
    dice_.note("dock " + dock->objectName().toStdString());
    dock->setVisible(!dock->isVisible());
}

void WalkHost::closeView() {
    dice_.note("close a view");
    auto const docks = window_.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (auto* const dock : docks) {
        if (qobject_cast<Panel::ObjectView*>(dock->widget())) {
            dock->close();
            return;
        }
    }
}

void WalkHost::resize() {
    int const width = 500 + static_cast<int>(dice_.below(600));
    int const height = 400 + static_cast<int>(dice_.below(500));
    dice_.note("resize " + std::to_string(width) + "x" + std::to_string(height));
    window_.resize(width, height);
}

void WalkHost::changeLook() {
    auto const kind = dice_.below(4);
    dice_.note("look " + std::to_string(kind));
    auto palette = QApplication::palette();
    auto font = QApplication::font();
    switch (kind) {
    case 0:
        palette.setColor(QPalette::Window, QColor::fromHsv(static_cast<int>(dice_.below(360)), 40, 200));
        QApplication::setPalette(palette);
        break;
    case 1:
        font.setPixelSize(8 + static_cast<int>(dice_.below(10)));
        QApplication::setFont(font);
        break;
    case 2:
        QApplication::setLayoutDirection(QApplication::isRightToLeft() ? Qt::LeftToRight : Qt::RightToLeft);
        break;
    default:
        changeLanguage();
    }
}

void WalkHost::changeLanguage() {
    if (std::exchange(translations_, nullptr)) {
        QLocale::setDefault(locale_);
        return;
    }
    QLocale::setDefault(QLocale(dice_.below(2) == 0 ? QLocale::German : QLocale::French));
    translations_ = std::make_unique<Panel::Translations>();
}

void WalkHost::restoreLook() {
    if (translations_)
        changeLanguage();
    QApplication::setPalette(palette_);
    QApplication::setFont(font_);
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void WalkHost::wait() {
    // Longer than every pause that the panel waits for: of the wheel, for a tool tip, before a picture is refined.
    constexpr int pause = 1200;
    dice_.note("wait");
    pass(VirtualTime::isRunning() ? pause : 20);
}
