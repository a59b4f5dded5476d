#include <panel/window/MessageTexts.hpp>

#include <QCoreApplication>
#include <QFileInfo>
#include <QMessageBox>

namespace Panel {

namespace {

// In characters; a menu that is wider than the screen cannot be used.
constexpr int longestMenuText = 70;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(MessageTexts)
};

template <typename Pointer>
QString nameOr(Pointer const& named, QString const& otherwise) {
    return named ? QString::fromStdString(named->Name()) : otherwise;
}

} // namespace

QString actionMessage(Kolt::ObjectPtr const& object, Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool) {
    return Texts::tr("Action %1.%2 was fired in pool %3.")
        .arg(nameOr(object, Texts::tr("(no object)")), nameOr(parameter, Texts::tr("(no parameter)")),
             nameOr(pool, Texts::tr("(no pool)")));
}

QString windowTitleFor(QString const& title, QString const& file) {
    auto const name = QFileInfo(file).fileName();
    if (name.isEmpty() || name == title)
        return Texts::tr("%1[*] – Talo panel").arg(title);
    return Texts::tr("%1[*] – %2 – Talo panel").arg(title, name);
}

QString menuText(QString const& text, QFontMetrics const& metrics) {
    auto const width = longestMenuText * metrics.averageCharWidth();
    return metrics.elidedText(text.simplified(), Qt::ElideMiddle, width).replace(QLatin1Char('&'), QLatin1String("&&"));
}

void showFailure(QWidget& window, QString const& title, QString const& reason) {
    auto* const box = new QMessageBox(QMessageBox::Warning, title, title, QMessageBox::Ok, &window);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(
        QStringLiteral("<p>%1</p>").arg(reason.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"))));
    box->open();
}

} // namespace Panel
