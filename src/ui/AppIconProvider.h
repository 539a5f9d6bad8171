// SPDX-License-Identifier: MIT
// The pictures of applications: image://appicon/<what source() says>.
#pragma once

#include "control/AppEntry.h"

#include <QQuickImageProvider>
#include <QString>

namespace fadeloom {

/// An app without a picture gets a tile with the first letter of its name.
class AppIconProvider final : public QQuickImageProvider {
public:
    AppIconProvider();

    /// Where the picture of an app is found.
    [[nodiscard]] static QString source(const AppEntry& app);

    QPixmap requestPixmap(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace fadeloom
