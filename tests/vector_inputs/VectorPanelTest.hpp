#pragma once

#include "../panel/PanelTest.hpp"

#include <parameters/rows/ParameterRow.hpp>
#include <QApplication>

/// A panel with the network of the example vector_inputs, whose plug-in is loaded beside qtalo_inputs.
class VectorPanelTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        ASSERT_TRUE(QFile::copy(QStringLiteral(TALO_VECTOR_NETWORK), file()));
        // A copy of a file that must not be written cannot be written either.
        QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
        QString error;
        ASSERT_TRUE(plugins.load(QStringLiteral(TALO_VECTOR_PLUGIN_FILE), &error)) << qPrintable(error);
        ASSERT_TRUE(window->openNetwork(file(), &error)) << qPrintable(error);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    QString file() const { return folder.filePath(QStringLiteral("vector.json")); }
    Talo::ParameterRow* row(char const* name) const { return window->currentView()->row(QString::fromUtf8(name)); }
    /// The fields of a row's editor: x, y and z.
    QLineEdit* field(char const* name, int index) const {
        return row(name)->editor()->findChildren<QLineEdit*>().value(index);
    }
    std::string shown(char const* name) const {
        QStringList texts;
        for (int index = 0; index < 3; ++index)
            texts << field(name, index)->text();
        return texts.join(QLatin1Char(' ')).toStdString();
    }
    void focus(char const* name, int index = 0) const {
        field(name, index)->setFocus();
        ASSERT_EQ(QApplication::focusWidget(), field(name, index));
    }
    /// Types a text over the number in a field.
    void type(char const* name, int index, char const* text) const {
        focus(name, index);
        field(name, index)->selectAll();
        QTest::keyClicks(field(name, index), QString::fromUtf8(text));
    }
    std::string held(char const* name) const { return valueOf((std::string("camera.") + name).c_str()); }
};
