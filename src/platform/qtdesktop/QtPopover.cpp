// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtPopover.h"

#include "platform/qt/EscapableView.h"
#include "platform/qtdesktop/Compositing.h"
#include "platform/qtdesktop/PopoverPlacement.h"
#include "platform/qtdesktop/Screens.h"

#include <QGuiApplication>
#include <QPalette>
#include <QQuickItem>

#include <utility>

namespace fadeloom {

QtPopover::QtPopover(std::function<IconPlace()> place)
    : place_(std::move(place))
    , view_(std::make_unique<EscapableView>([this] { close(); }))
{
    view_->setFlags(
        Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint);
    view_->setTitle(QStringLiteral("Fadeloom"));
    view_->setColor(Qt::transparent);
    view_->setResizeMode(QQuickView::SizeViewToRootObject);
    QObject::connect(view_.get(), &QWindow::activeChanged, view_.get(), [this] { activeChanged(); });
    QObject::connect(view_.get(), &QWindow::visibleChanged, view_.get(), [this] { seenChanged(); });
    QObject::connect(view_.get(), &QWindow::windowStateChanged, view_.get(), [this] {
        if (view_->isVisible())  // It is announced on the way to being shown, too.
            seenChanged();
    });
    const auto sizeChanged = [this] {
        if (isOpen_)
            putInPlace();
    };
    QObject::connect(view_.get(), &QWindow::heightChanged, view_.get(), sizeChanged);
    QObject::connect(view_.get(), &QWindow::widthChanged, view_.get(), sizeChanged);
    if (auto shell = LayerShell::create()) {
        LayerPopover::prepare(*view_);
        layer_ = std::make_unique<LayerPopover>(std::move(shell), *view_, [this] { close(); });
    }
}

QtPopover::~QtPopover()
{
    view_->disconnect();  // The window's end announces itself to somebody half gone.
}

QQuickView& QtPopover::view()
{
    return *view_;
}

void QtPopover::becomeOrdinaryWindow()
{
    close();
    layer_.reset();
    isOrdinary_ = true;
    view_->setFlags(Qt::Window);
    view_->setColor(QGuiApplication::palette().color(QPalette::Window));  // It has corners.
}

bool QtPopover::hasContent()
{
    if (const auto make = std::exchange(makeContent_, nullptr))
        view_->setContent({}, nullptr, make().release());
    return view_->rootObject() != nullptr;
}

void QtPopover::show()
{
    if (!hasContent())
        return;
    if (!std::exchange(isOpen_, true))
        willShow_();
    wasActive_ = false;
    if (layer_)
        layer_->open(place_(), [this](int availableHeight) { fitContent(availableHeight); });
    else
        showAsWindow();
    view_->requestActivate();
}

void QtPopover::showAsWindow()
{
    fitContent(availableHeight());
    putInPlace();
    view_->setWindowStates(view_->windowStates() & ~Qt::WindowMinimized);
    view_->show();
    view_->raise();
}

void QtPopover::close()
{
    if (layer_)
        layer_->close();
    else
        view_->hide();
}

bool QtPopover::isShown() const
{
    return isOpen_ || (sinceFocusLoss_.isValid() && !sinceFocusLoss_.hasExpired(clickTime));
}

void QtPopover::fitContent(int availableHeight)
{
    auto* const content = view_->rootObject();
    // Without a compositor what is transparent would be black.
    const bool isMixed = !isOrdinary_ && isComposited();
    content->setProperty("hasRoundCorners", isMixed);
    content->setProperty("isTranslucent", isMixed);
    content->setProperty("availableHeight", availableHeight);
}

int QtPopover::availableHeight() const
{
    const auto screens = currentScreens();
    return screens[placePopover(place_().rect, view_->size(), screens).screen].free.height() - 2 * panelGap;
}

void QtPopover::putInPlace()
{
    if (isOrdinary_ || layer_)
        return;
    const auto screens = currentScreens();
    view_->setPosition(placePopover(place_().rect, view_->size(), screens).position);
}

void QtPopover::activeChanged()
{
    if (view_->isActive()) {
        wasActive_ = true;
        return;
    }
    // A window of ours, as a dialog, does not count as another one.
    if (isOrdinary_ || !wasActive_ || QGuiApplication::focusWindow() != nullptr)
        return;
    if (layer_ && layer_->isBehindDialog())
        return;
    sinceFocusLoss_.start();
    close();
}

// A minimised window is not seen, though it counts as visible.
bool QtPopover::isSeen() const
{
    return view_->isVisible() && !view_->windowStates().testFlag(Qt::WindowMinimized);
}

void QtPopover::seenChanged()
{
    const bool isSeenNow = isSeen();
    if (std::exchange(isOpen_, isSeenNow) == isSeenNow)
        return;
    if (isSeenNow)
        willShow_();
    else
        didClose_();
}

}  // namespace fadeloom
