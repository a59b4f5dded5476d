#include <panel/window/RecentMenu.hpp>

#include <panel/window/MessageTexts.hpp>
#include <QFileInfo>

namespace Panel {

RecentMenu::RecentMenu(QWidget* parent) : QMenu(tr("Open &recent"), parent) {
    setObjectName(QStringLiteral("recent"));
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::fill);
    menuAction()->setEnabled(false);
}

RecentMenu::~RecentMenu() = default;

void RecentMenu::addOlder(QStringList const& files) {
    for (auto const& file : files)
        if (QFileInfo(file).isAbsolute() && !files_.contains(file) && files_.size() < Capacity)
            files_ << file;
    menuAction()->setEnabled(!files_.isEmpty());
}

void RecentMenu::add(QString const& file) {
    if (file.isEmpty())
        return;
    files_.removeAll(file);
    files_.prepend(file);
    files_ = files_.mid(0, Capacity);
    menuAction()->setEnabled(true);
}

void RecentMenu::drop(QString const& file) {
    files_.removeAll(file);
    menuAction()->setEnabled(!files_.isEmpty());
}

void RecentMenu::fill() {
    clear();
    int number = 0;
    for (auto const& file : qAsConst(files_)) {
        QFileInfo const info(file);
        auto const text = menuText(tr("%1 in %2").arg(info.fileName(), info.absolutePath()), fontMetrics());
        // The first nine have their number as key.
        ++number;
        auto* const action =
            addAction(number < Capacity ? QStringLiteral("&%1  %2").arg(QString::number(number), text) : text, this,
                      [this, file] { emit chosen(file); });
        action->setData(file);
    }
    addSeparator();
    addAction(tr("&Clear the list"), this, [this] {
        files_.clear();
        menuAction()->setEnabled(false);
    })->setObjectName(QStringLiteral("clearRecent"));
}

} // namespace Panel
