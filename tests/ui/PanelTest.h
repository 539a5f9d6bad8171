// SPDX-License-Identifier: MIT
// The fixture of tests that need Qt's application object: without a display, with software rendering.
#pragma once

#include "ui/PanelEngine.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QString>
#include <QTranslator>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>

// Found by argument-dependent lookup: failures show text instead of bytes.
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << text.toStdString();
}
QT_END_NAMESPACE

namespace fadeloom {

class PanelTest : public testing::Test {
public:
    /// Idempotent.
    static void startApplication()
    {
        static int argumentCount = 1;
        static char name[] = "uiTests";
        static char* arguments[] = {name, nullptr};
        if (qApp)
            return;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_QUICK_CONTROLS_STYLE", "Basic");
        drawBySoftware();
        // It lives as long as the process: Qt wants one at a time, and not twice.
        static const auto* const application = new QGuiApplication(argumentCount, arguments);
        static_cast<void>(application);
    }

protected:
    static void SetUpTestSuite() { startApplication(); }

    /// Sets the interface language until the result is destroyed.
    static std::unique_ptr<QTranslator> speaking(const char* language)
    {
        static const PanelEngine resources;  // Keeps the linker from dropping the string tables.
        auto translator = std::make_unique<QTranslator>();
        EXPECT_TRUE(translator->load(QStringLiteral(":/i18n/fadeloom_%1.qm").arg(QLatin1String(language))));
        QCoreApplication::installTranslator(translator.get());
        return translator;
    }
};

}  // namespace fadeloom
