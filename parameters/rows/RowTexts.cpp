#include <parameters/rows/RowTexts.hpp>

#include <bramble/HarmlessText.hpp>
#include <network/JsonFormat.hpp>
#include <parameters/commands/RowCommands.hpp>
#include <parameters/rows/HostTexts.hpp>
#include <parameters/rows/ParameterDescription.hpp>
#include <QCoreApplication>
#include <QTextDocumentFragment>

namespace Talo {

namespace {

struct RowTexts {
    Q_DECLARE_TR_FUNCTIONS(RowTexts)
};

QString escaped(QString const& text) {
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

QString withoutTags(QString const& text) {
    auto const bytes = text.toStdString();
    return Kolt::isRichText(bytes)
               ? QTextDocumentFragment::fromHtml(QString::fromStdString(Kolt::harmlessText(bytes))).toPlainText()
               : text;
}

/// From "min" to "max", with the unit; empty without both, and where an editor filled them in.
QString rangeOf(Kolt::VParameter const& parameter, QString const& unit) {
    auto const* const properties = parameter.properties();
    auto const bound = [&](char const* name) {
        auto const value = properties && !parameter.isFilledIn(name) ? properties->getValue(name) : nullptr;
        return value ? QString::fromStdString(value->Text()) : QString();
    };
    auto const least = bound("min");
    auto const most = bound("max");
    if (least.isEmpty() || most.isEmpty())
        return {};
    return unit.isEmpty() ? RowTexts::tr("%1 to %2").arg(least, most)
                          : RowTexts::tr("%1 to %2 %3").arg(least, most, unit);
}

QStringList keysOf(Kolt::ParameterPtr const& parameter) {
    QStringList keys;
    for (auto const& command : rowCommands()) {
        if (command.shortcut.isEmpty() || !command.isEnabledFor(parameter))
            continue;
        auto text = command.text;
        keys << RowTexts::tr("%1: %2").arg(command.shortcut.toString(QKeySequence::NativeText),
                                           text.remove(QLatin1Char('&')));
    }
    return keys;
}

} // namespace

QString rowToolTip(Kolt::ParameterPtr const& parameter) {
    ParameterDescription const description(*parameter);
    auto toolTip = QStringLiteral("<p><b>%1</b>").arg(escaped(description.label));
    if (description.label != description.name)
        toolTip += QStringLiteral(" (%1)").arg(escaped(description.name));
    toolTip += QLatin1String("</p>");
    auto const add = [&toolTip](QString const& text) {
        if (!text.isEmpty())
            toolTip += QStringLiteral("<p>%1</p>").arg(escaped(text));
    };
    add(withoutTags(description.help));
    auto const range = rangeOf(*parameter, description.unit);
    if (!range.isEmpty())
        add(RowTexts::tr("Range: %1").arg(range));
    else if (!description.unit.isEmpty())
        add(RowTexts::tr("Unit: %1").arg(description.unit));
    if (description.isReadOnly)
        add(RowTexts::tr("This value cannot be changed here."));
    add(keysOf(parameter).join(QLatin1Char('\n')));
    return toolTip;
}

QString creatorExplanation(Kolt::VParameter const& parameter, EditorCell const& cell) {
    auto const wanted = parameter.creationPreferences() ? parameter.creationPreferences()->names()
                                                        : Kolt::VCreationPreferences::Names();
    return QStringLiteral("<p>%1<br>%2</p><p>%3</p>")
        .arg(escaped(RowTexts::tr("Type: %1").arg(QString::fromStdString(parameter.declaredType()))),
             escaped(RowTexts::tr("Preferences: %1").arg(QString::fromStdString(Kolt::preferenceText(wanted)))),
             escaped(RowTexts::tr("Editor: %1").arg(hostText(QString::fromStdString(cell.choice().explanation)))));
}

QString rowNote(Kolt::ParameterPtr const& parameter, Kolt::PoolPtr const& pool) {
    if (!parameter)
        return RowTexts::tr("was removed");
    if (!parameter->keepsValuesPerPool())
        return {};
    return pool ? RowTexts::tr("in pool %1").arg(QString::fromStdString(pool->Name())) : RowTexts::tr("no pool");
}

QString controlDescription(QString const& objectName, Kolt::VParameter const& parameter, Kolt::PoolPtr const& pool) {
    auto const name = objectName + QLatin1Char('.') + QString::fromStdString(parameter.Name());
    auto const type = shortTypeName(parameter.declaredType());
    if (!parameter.keepsValuesPerPool())
        return RowTexts::tr("%1, type %2").arg(name, type);
    if (!pool)
        return RowTexts::tr("%1, type %2, no pool").arg(name, type);
    return RowTexts::tr("%1, type %2, in pool %3").arg(name, type, QString::fromStdString(pool->Name()));
}

} // namespace Talo
