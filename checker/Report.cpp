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
                    .arg(result.passed() ? "passed" : "FAILED")
                    .arg(result.level, 2)
                    .arg(result.name);
    for (auto const& fault : result.faults)
        text += "        " + fault + '\n';
    for (auto const& note : result.notes)
        text += "        note: " + note + '\n';
    if (!result.passed())
        for (auto const& line : result.output)
            text += "        printed: " + line + '\n';
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
        checks.append(QJsonObject{{"name", result.name},
                                  {"level", result.level},
                                  {"passed", result.passed()},
                                  {"seconds", result.seconds},
                                  {"faults", QJsonArray::fromStringList(result.faults)},
                                  {"notes", QJsonArray::fromStringList(result.notes)},
                                  {"output", QJsonArray::fromStringList(result.output)}});
    QJsonObject const report{
        {"file", file}, {"seed", static_cast<double>(seed)}, {"passed", passed()}, {"checks", checks}};
    return QJsonDocument(report).toJson();
}

QByteArray Report::asJUnit() const {
    QByteArray xml;
    QXmlStreamWriter writer(&xml);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement("testsuite");
    writer.writeAttribute("name", file);
    writer.writeAttribute("tests", QString::number(results.size()));
    auto const failed = std::count_if(results.begin(), results.end(), [](auto const& each) { return !each.passed(); });
    writer.writeAttribute("failures", QString::number(failed));
    for (auto const& result : results) {
        writer.writeStartElement("testcase");
        writer.writeAttribute("classname", QStringLiteral("level %1").arg(result.level));
        writer.writeAttribute("name", result.name);
        writer.writeAttribute("time", QString::number(result.seconds));
        if (!result.passed()) {
            writer.writeStartElement("failure");
            writer.writeAttribute("message", result.faults.first());
            writer.writeCharacters(result.faults.join('\n'));
            writer.writeEndElement();
        }
        if (!result.output.isEmpty())
            writer.writeTextElement("system-out", result.output.join('\n'));
        writer.writeEndElement();
    }
    writer.writeEndElement();
    writer.writeEndDocument();
    return xml;
}

} // namespace Checker
