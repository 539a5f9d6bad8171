// SPDX-License-Identifier: MIT
#include "ui/PanelEngine.h"

#include "ui/AppIconProvider.h"
#include "ui/PanelModel.h"
#include "ui/SymbolProvider.h"

#include <QFontDatabase>
#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QUrl>
#include <QVariant>

// Generated for the module; referencing it keeps the linker from dropping the registration from a static library.
void qml_register_types_Fadeloom();

namespace fadeloom {
namespace {

// Fonts are per process: once is enough.
void addFonts()
{
    static const bool isDone = [] {
        for (const auto* const style : {"Regular", "Medium", "SemiBold"})
            QFontDatabase::addApplicationFont(
                QStringLiteral(":/fonts/FadeloomInter-%1.ttf").arg(QLatin1String(style)));
        return true;
    }();
    static_cast<void>(isDone);
}

}  // namespace

PanelEngine::PanelEngine()
{
    qml_register_types_Fadeloom();
    addFonts();
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    // The engine owns its providers.
    engine_.addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
    engine_.addImageProvider(QStringLiteral("appicon"), new AppIconProvider);
}

std::unique_ptr<QQuickItem> PanelEngine::makeRootView(PanelModel& panel, const QString& expandedApp)
{
    QQmlEngine::setObjectOwnership(&panel, QQmlEngine::CppOwnership);
    QQmlComponent component(&engine_, QUrl(QStringLiteral("qrc:/qt/qml/Fadeloom/RootView.qml")));
    // A component with errors must not be created: Qt 6.4 would crash.
    std::unique_ptr<QObject> object;
    if (component.isReady())
        object.reset(
            component.createWithInitialProperties({{QStringLiteral("panel"), QVariant::fromValue(&panel)},
                {QStringLiteral("expandedApp"), expandedApp}}));
    for (const auto& error : component.errors())
        qCritical("%s", qUtf8Printable(error.toString()));
    auto* const item = qobject_cast<QQuickItem*>(object.get());
    if (!item)
        return nullptr;
    static_cast<void>(object.release());
    return std::unique_ptr<QQuickItem>(item);
}

void drawBySoftware()
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

}  // namespace fadeloom
