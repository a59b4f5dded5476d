#include <checker/Report.hpp>

#include <algorithm>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamWriter>

namespace Checker {

bool Report::passed() const {
    return std::all_of(results.begin(), results.end(), [](auto const& result) { return result.passed(); });
}

QByteArray textOf(CheckResult const& result) {
    auto text = QStringLiteral("%1  level %2  %3\n")
                    .arg(result.passed() ? QStringLiteral("passed") : QStringLiteral("FAILED"))
                    .arg(result.level, 2)
                    .arg(result.name);
    for (auto const& fault : result.faults)
        text += QStringLiteral("        ") + fault + QLatin1Char('\n');
    for (auto const& note : result.notes)
        text += QStringLiteral("        note: ") + note + QLatin1Char('\n');
    if (!result.passed())
        for (auto const& line : result.output)
            text += QStringLiteral("        printed: ") + line + QLatin1Char('\n');
    return text.toUtf8();
}

QByteArray Report::asText() const {
    QByteArray text;
    for (auto const& result : results)
        text += textOf(result);
    auto const failed = std::count_if(results.begin(), results.end(), [](auto const& each) { return !each.passed(); });
    text += QStringLiteral("%1: %2 of %3 checks passed (seed %4).\n")
                .arg(file)
                .arg(static_cast<long>(results.size()) - failed)
                .arg(results.size())
                .arg(seed)
                .toUtf8();
    return text;
}

QByteArray Report::asJson() const {
    QJsonArray checks;
    for (auto const& result : results)
        checks.append(QJsonObject{{QStringLiteral("name"), result.name},
                                  {QStringLiteral("level"), result.level},
                                  {QStringLiteral("passed"), result.passed()},
                                  {QStringLiteral("seconds"), result.seconds},
                                  {QStringLiteral("faults"), QJsonArray::fromStringList(result.faults)},
                                  {QStringLiteral("notes"), QJsonArray::fromStringList(result.notes)},
                                  {QStringLiteral("output"), QJsonArray::fromStringList(result.output)}});
    QJsonObject const report{{QStringLiteral("file"), file},
                             {QStringLiteral("seed"), static_cast<double>(seed)},
                             {QStringLiteral("passed"), passed()},
                             {QStringLiteral("checks"), checks}};
    return QJsonDocument(report).toJson();
}

QByteArray Report::asJUnit() const {
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QStringLiteral("testsuite"));
    writer.writeAttribute(QStringLiteral("name"), file);
    writer.writeAttribute(QStringLiteral("tests"), QString::number(results.size()));
    auto const failed = std::count_if(results.begin(), results.end(), [](auto const& each) { return !each.passed(); });
    writer.writeAttribute(QStringLiteral("failures"), QString::number(failed));
    for (auto const& result : results) {
        writer.writeStartElement(QStringLiteral("testcase"));
        writer.writeAttribute(QStringLiteral("classname"), QStringLiteral("level %1").arg(result.level));
        writer.writeAttribute(QStringLiteral("name"), result.name);
        writer.writeAttribute(QStringLiteral("time"), QString::number(result.seconds));
        if (!result.passed()) {
            writer.writeStartElement(QStringLiteral("failure"));
            writer.writeAttribute(QStringLiteral("message"), result.faults.first());
            writer.writeCharacters(result.faults.join(QLatin1Char('\n')));
            writer.writeEndElement();
        }
        if (!result.output.isEmpty())
            writer.writeTextElement(QStringLiteral("system-out"), result.output.join(QLatin1Char('\n')));
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeEndDocument();
    return xml;
}

} // namespace Checker
