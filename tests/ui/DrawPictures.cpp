// SPDX-License-Identifier: MIT
// Renders the panel in many states, for visual inspection:
//
// cmake --build --preset dev --target pictures      renders to build/pictures
#include "tests/ui/PictureScenes.h"
#include "ui/PanelEngine.h"

#include <QDir>
#include <QGuiApplication>
#include <QTranslator>

#include <cstdio>

using namespace fadeloom;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    drawBySoftware();
    const QGuiApplication application(argc, argv);
    const QDir folder(QString::fromLocal8Bit(argc > 1 ? argv[1] : "build/pictures"));
    folder.mkpath(QStringLiteral("."));
    bool isDrawn = true;
    for (const auto* const language : {"en", "pl"}) {
        QTranslator translator;
        if (translator.load(QStringLiteral(":/i18n/fadeloom_%1.qm").arg(QLatin1String(language))))
            QCoreApplication::installTranslator(&translator);
        for (const auto theme : {Theme::dark, Theme::light}) {
            const auto suffix =
                QLatin1String(theme == Theme::dark ? "-dark-" : "-light-") + QLatin1String(language);
            for (const auto& scene : pictureScenes()) {
                const auto file = folder.filePath(scene.name + suffix + QStringLiteral(".png"));
                const bool isSaved = scene.draw(theme, 2).save(file);
                std::printf("%s %s\n", isSaved ? "drawn" : "FAILED", qUtf8Printable(file));
                isDrawn &= isSaved;
            }
        }
    }
    return isDrawn ? 0 : 1;
}
