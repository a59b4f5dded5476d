#include <parameters/commands/HelpView.hpp>

#include <bramble/HarmlessText.hpp>
#include <parameters/rows/ParameterDescription.hpp>

namespace Talo {

HelpView::HelpView(QWidget* parent) : QTextBrowser(parent) {
    setOpenLinks(false);
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
    setHtml(QStringLiteral("<h3>%1</h3>%2").arg(description.label.toHtmlEscaped(), body));
}

QVariant HelpView::loadResource(int, QUrl const&) {
    return {};
}

} // namespace Talo
