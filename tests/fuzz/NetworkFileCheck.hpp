#pragma once

#include <network/Network.hpp>
#include <network/NetworkReader.hpp>
#include <QFile>
#include <QTemporaryDir>
#include <string>

/// Reads the bytes as a network file, writes the network, reads that and writes it once more. What is wrong with that,
/// a sentence; empty where the bytes are refused, or every value survives and both files have the same bytes.
inline std::string problemOfNetworkFile(QByteArray const& bytes) {
    static QTemporaryDir const folder;
    auto const file = folder.filePath(QStringLiteral("network.json"));
    std::unique_ptr<Talo::Network> network;
    try {
        network = Talo::NetworkReader::read(Talo::JsonNode::parse(bytes), file);
    } catch (Talo::FormatError const& refused) {
        return refused.line > 0 && !refused.text.isEmpty() ? "" : "it is refused without a line and a reason";
    }
    QString error;
    if (!network->save(file, &error))
        return "it is read and cannot be written: " + error.toStdString();
    auto const written = [&file] {
        QFile source(file);
        source.open(QIODevice::ReadOnly);
        return source.readAll();
    };
    auto const first = written();
    auto const again = Talo::Network::load(file);
    if (!again.network)
        return "what was written is not read: " + again.error.toStdString();
    if (again.network->values() != network->values())
        return "other values are read than were written";
    if (again.network->isModified())
        return "what was just read counts as modified";
    if (!again.network->save(file, &error) || written() != first)
        return "written again, it has other bytes";
    return {};
}
