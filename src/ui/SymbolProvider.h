// SPDX-License-Identifier: MIT
// Our symbols in any colour: image://symbol/<name>/<colour>, the colour as "#aarrggbb".
#pragma once

#include <QQuickImageProvider>

namespace fadeloom {

/// Draws at the size that is asked for; a name that is not known draws nothing.
class SymbolProvider final : public QQuickImageProvider {
public:
    SymbolProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace fadeloom
