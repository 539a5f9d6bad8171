// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/QtPopover.h"

#include "platform/qt/EscapableView.h"
#include "platform/qtdesktop/Compositing.h"
#include "platform/qtdesktop/PopoverPlacement.h"
#include "platform/qtdesktop/Screens.h"
#include "platform/qtdesktop/WindowLists.h"

#include <QGuiApplication>
#include <QPalette>
#include <QQuickItem>

#include <utility>

namespace fadeloom {

namespace {

constexpr int frameTime = 16;  // Milliseconds.

constexpr qreal firstOpacity = 0.3;

}  // namespace

QtPopover::QtPopover(std::function<IconPlace()> place, std::function<bool()> reducesMotion)
    : place_(std::move(place))
    , reducesMotion_(std::move(reducesMotion))
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
        if (view_->isVisible())  // It is also emitted while the window is being shown.
            seenChanged();
    });
    const auto sizeChanged = [this] {
        if (isOpen_)
            updatePlacement();
    };
    QObject::connect(view_.get(), &QWindow::heightChanged, view_.get(), sizeChanged);
    QObject::connect(view_.get(), &QWindow::widthChanged, view_.get(), sizeChanged);
    QObject::connect(view_.get(), &QWindow::xChanged, view_.get(), [this] { windowMoved(); });
    QObject::connect(view_.get(), &QWindow::yChanged, view_.get(), [this] { windowMoved(); });
    fade_.setUpdateInterval(frameTime);
    fade_.setEasingCurve(QEasingCurve::OutCubic);
    QObject::connect(&fade_, &QTimeLine::valueChanged, view_.get(),
        [this](qreal part) { view_->rootObject()->setOpacity(firstOpacity + (1 - firstOpacity) * part); });
    if (auto shell = LayerShell::create()) {
        LayerPopover::prepare(*view_);
        layer_ = std::make_unique<LayerPopover>(std::move(shell), *view_, [this] { close(); });
    }
}

QtPopover::~QtPopover()
{
    if (isOpen_ && left_)
        leaves_(*left_);
    view_->disconnect();  // The window's destruction would emit signals to a partly destroyed object.
}

QQuickView& QtPopover::view()
{
    return *view_;
}

void QtPopover::turnIntoOrdinaryWindow(std::optional<QPoint> left, std::function<void(QPoint)> leaves)
{
    left_ = left;
    leaves_ = std::move(leaves);
    close();
    layer_.reset();
    isOrdinary_ = true;
    view_->setFlags(Qt::Window);
    view_->setColor(QGuiApplication::palette().color(QPalette::Window));  // Shown behind the rounded corners.
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
    if (!std::exchange(isOpen_, true)) {
        willShow_();
        fadeIn();
    }
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
    updatePlacement();
    view_->setWindowStates(view_->windowStates() & ~Qt::WindowMinimized);
    if (!isOrdinary_)
        hideFromWindowLists(*view_);
    view_->show();
    view_->raise();
}

void QtPopover::fadeIn()
{
    fade_.stop();
    auto* const content = view_->rootObject();
    // Without a compositor, translucent pixels would be blended with black.
    if (!isAnimated_ || isOrdinary_ || reducesMotion_() || !isComposited())
        return content->setOpacity(1);
    content->setOpacity(firstOpacity);
    fade_.start();
}

// On Wayland a window's position is unknown.
void QtPopover::windowMoved()
{
    if (isOrdinary_ && isOpen_ && QGuiApplication::platformName() != QLatin1String("wayland"))
        left_ = view_->framePosition();
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
    // Without a compositor, transparent pixels would be black.
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

void QtPopover::updatePlacement()
{
    if (layer_)
        return;
    const auto screens = currentScreens();
    if (isOrdinary_) {
        // Once open, the user may resize it.
        if (!view_->isVisible())
            view_->setFramePosition(placeWindow(left_, view_->size(), screens));
        return;
    }
    view_->setPosition(placePopover(place_().rect, view_->size(), screens).position);
}

void QtPopover::activeChanged()
{
    if (view_->isActive()) {
        wasActive_ = true;
        return;
    }
    // Windows of ours, such as dialogs, do not count.
    if (isOrdinary_ || !isOpen_ || !wasActive_ || QGuiApplication::focusWindow() != nullptr)
        return;
    if (layer_ && layer_->isBehindDialog())
        return;
    sinceFocusLoss_.start();
    close();
}

// A minimised window is not visible to the user, although Qt says so.
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
        return willShow_();
    didClose_();
    if (left_)
        leaves_(*left_);
}

}  // namespace fadeloom
