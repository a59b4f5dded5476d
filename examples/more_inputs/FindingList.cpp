#include "FindingList.hpp"

#include <QKeyEvent>
#include <QToolTip>

namespace MoreInputs {

FindingList::FindingList(QWidget* parent) : QListView(parent) {
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideMiddle);
}

FindingList::~FindingList() = default;

void FindingList::keyboardSearch(QString const& typed) {
    bool const goesOn = sinceKey_.isValid() && sinceKey_.elapsed() < Pause;
    find(goesOn ? text_ + typed : typed);
}

void FindingList::find(QString const& text) {
    text_ = text;
    sinceKey_.start();
    // What was typed is seen nowhere else.
    QToolTip::showText(mapToGlobal(QPoint(0, height())), text_, this);
    if (text_.isEmpty())
        return;
    // From the current entry on, so that one that still fits stays.
    auto const start = currentIndex().isValid() ? currentIndex() : model()->index(0, 0);
    for (auto const kind : {Qt::MatchStartsWith, Qt::MatchContains}) {
        auto const found = model()->match(start, Qt::DisplayRole, text_, 1, Qt::MatchFlags(kind | Qt::MatchWrap));
        if (found.isEmpty())
            continue;
        setCurrentIndex(found.first());
        scrollTo(found.first());
        return;
    }
}

void FindingList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Backspace && !text_.isEmpty()) {
        find(text_.chopped(1));
        event->accept();
    } else if (event->key() == Qt::Key_Space && !text_.isEmpty() && sinceKey_.elapsed() < Pause) {
        // Otherwise it would choose, as Return does.
        keyboardSearch(QStringLiteral(" "));
        event->accept();
    } else {
        QListView::keyPressEvent(event);
    }
}

void FindingList::hideEvent(QHideEvent* event) {
    QListView::hideEvent(event);
    text_.clear();
    sinceKey_.invalidate();
    QToolTip::hideText();
}

} // namespace MoreInputs
