// SPDX-License-Identifier: MIT
// Our symbols in any colour: image://symbol/<name>/<colour>, the colour as "#aarrggbb".
#pragma once

#include <QQuickImageProvider>

namespace fadeloom {

/// Renders at the requested size; an unknown name renders nothing.
class SymbolProvider final : public QQuickImageProvider {
public:
    SymbolProvider();

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;
};

}  // namespace fadeloom
