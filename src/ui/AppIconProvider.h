// SPDX-License-Identifier: MIT
// Application icons: image://appicon/<the result of source()>.
#pragma once

#include "control/AppEntry.h"

#include <QQuickImageProvider>
#include <QString>

namespace fadeloom {

/// An app without an icon gets a tile with the first letter of its name.
class AppIconProvider final : public QQuickImageProvider {
public:
    AppIconProvider();

    /// The source of an app's icon.
    [[nodiscard]] static QString source(const AppEntry& app);

    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace fadeloom
