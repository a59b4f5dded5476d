#pragma once

#include "support/TaloTest.hpp"

#include <network/Network.hpp>
#include <QDir>
#include <QTemporaryDir>

/// Network files in a temporary folder.
class NetworkFileTest : public TaloTest {
protected:
    QString path(QString const& name) const { return folder_.filePath(name); }

    QString write(QByteArray const& bytes, QString const& name = "network.json") const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return path(name);
    }

    static QByteArray bytesOf(QString const& file) {
        QFile source(file);
        EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << file.toStdString();
        return source.readAll();
    }

    /// Loads the network of a text, which must be valid.
    std::unique_ptr<Talo::Network> network(QByteArray const& json) const {
        auto result = Talo::Network::load(write(json));
        if (!result.network)
            throw std::runtime_error(result.error.toStdString());
        return std::move(result.network);
    }

    /// A network with the pools "draft" and "final" and one object "o" with the parameters, which begin on line 3.
    static QByteArray withParameters(QByteArray const& parameters) {
        return "{ \"pools\": [\"draft\", \"final\"], \"objects\": [\n{ \"name\": \"o\", \"parameters\": [\n" +
               parameters + "\n] } ] }\n";
    }

    /// The parameter "p" of the object "o".
    static Kolt::ParameterPtr parameterOf(Talo::Network const& network) { return network.findParameter("o.p"); }

private:
    QTemporaryDir folder_;
};

/// The content of a value object, whose type must be T.
template <typename T>
T content(Kolt::ValuePtr const& value) {
    T read{};
    auto const* const typed = dynamic_cast<Kolt::VTypedValueBase<T> const*>(value.get());
    EXPECT_TRUE(typed && typed->get(read)) << "the value is no " << Tessera::Typename(typeid(T));
    return read;
}

using Network = NetworkFileTest;

/// A property's type and text.
inline std::string propertyOf(Kolt::ParameterPtr const& parameter, char const* name) {
    auto const value = parameter->properties() ? parameter->properties()->getValue(name) : nullptr;
    return value ? Tessera::Typename(value->valueType()) + " " + value->Text() : "none";
}

/// The name of a type of values.
template <typename T>
std::string nameOfType() {
    return Tessera::Typename(typeid(T));
}
