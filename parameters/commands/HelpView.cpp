#include <parameters/commands/HelpView.hpp>

#include <bramble/HarmlessText.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <QEvent>

namespace Talo {

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
    showTexts();
}

void HelpView::showTexts() {
    setAccessibleName(tr("Help"));
    setPlaceholderText(tr("F1 in a row shows what its parameter does."));
}

HelpView::~HelpView() = default;

void HelpView::showHelp(Kolt::VParameter const& parameter) {
    ParameterDescription const description(parameter);
    auto const help = description.help.toStdString();
    auto const body = Kolt::isRichText(help)
                          ? QString::fromStdString(Kolt::harmlessText(help))
                          : description.help.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
    html_ = QStringLiteral("<h3>%1</h3>%2").arg(description.label.toHtmlEscaped(), body);
    setHtml(html_);
}

void HelpView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    // A document keeps the colours of the links that it was read with.
    if (event->type() == QEvent::PaletteChange && !html_.isEmpty())
        setHtml(html_);
}

QVariant HelpView::loadResource(int, QUrl const&) {
    return {};
}

} // namespace Talo
