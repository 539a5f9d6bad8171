// SPDX-License-Identifier: MIT
#include "platform/qtdesktop/LayerPopover.h"

#include "platform/qtdesktop/Screens.h"

#include <QDeadlineTimer>
#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

namespace fadeloom {
namespace {

using namespace std::chrono_literals;

constexpr auto longestPointerWait = 40ms;
constexpr auto allEdges = Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge;

bool isDialog(const QWindow& window)
{
    return window.type() == Qt::Dialog || window.type() == Qt::Window;
}

}  // namespace

void LayerPopover::prepare(QWindow& window)
{
    qputenv("QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1");
    window.setFlag(Qt::BypassWindowManagerHint);
}

LayerPopover::LayerPopover(
    std::unique_ptr<LayerShell> shell, QWindow& window, std::function<void()> dismissed)
    : shell_(std::move(shell))
    , window_(window)
    , dismissed_(std::move(dismissed))
{
    shell_->whenReleased([this](const wl_surface* surface) { released(surface); });
    connect(&window_, &QWindow::widthChanged, this, [this] { updatePlacement(); });
    connect(&window_, &QWindow::heightChanged, this, [this] { updatePlacement(); });
    qGuiApp->installEventFilter(this);
}

LayerPopover::~LayerPopover()
{
    close();
}

void LayerPopover::open(const IconPlace& icon, const std::function<void(int availableHeight)>& fit)
{
    if (isOpen())
        return;
    dialogs_.clear();
    makeCatchers();
    shell_->roundtrip();  // Receives their sizes.
    if (icon.isUnderPointer)
        waitForPointer();
    icon_ = findIcon(icon);
    placement_ = placePopover(icon_, window_.size(), currentScreens());
    auto& screen = *QGuiApplication::screens().at(static_cast<qsizetype>(placement_.screen));
    window_.setScreen(&screen);
    // A surface stretched over the whole screen is configured with the size that the bars leave.
    free_ = {};
    constexpr LayerSurface::Place stretched{.edges = allEdges, .margins = {}, .size = QSize(0, 0)};
    role_.emplace(
        *shell_, LayerShell::surfaceOf(window_), LayerShell::outputOf(screen), stretched,
        [this](QSize size) {
            if (!free_.isValid())
                free_ = size;
        },
        [this] { dismissLater(); });
    shell_->roundtrip();
    if (!free_.isValid())
        free_ = screen.size();
    fit(free_.height() - 2 * panelGap);
    updatePlacement();
    shell_->roundtrip();  // No frame may be drawn before the surface is configured.
    window_.show();
}

void LayerPopover::close()
{
    if (!isOpen())
        return;
    role_.reset();  // Destroyed before the surface.
    window_.destroy();
    catchers_.clear();
}

void LayerPopover::makeCatchers()
{
    for (auto* const screen : QGuiApplication::screens())
        catchers_.emplace_back(*shell_, *screen, [this] { dismissLater(); });
}

void LayerPopover::released(const wl_surface* surface)
{
    if (std::ranges::any_of(catchers_, [&](const ClickCatcher& catcher) { return catcher.isAt(surface); }))
        dismissLater();
}

// Deferred, because the event may come from the very object that is destroyed.
void LayerPopover::dismissLater()
{
    QTimer::singleShot(0, this, dismissed_);
}

// Sent by the compositor once it has mapped the click catcher below.
void LayerPopover::waitForPointer()
{
    const QDeadlineTimer limit(longestPointerWait);
    do {
        shell_->roundtrip();
        if (shell_->pointer().surface != nullptr)
            return;
        std::this_thread::sleep_for(1ms);
    } while (!limit.hasExpired());
}

// The pointer is exact on every bar; positions reported by bars are not.
std::optional<QRect> LayerPopover::findIcon(const IconPlace& told) const
{
    const auto known = icon_ ? icon_ : told.rect;
    if (!told.isUnderPointer)
        return known;
    const auto screens = currentScreens();
    std::size_t number = 0;
    for (const auto& catcher : catchers_) {
        const auto& screen = screens[number++];
        const auto place = screen.geometry.topLeft() + shell_->pointer().place.toPoint();
        if (catcher.isAt(shell_->pointer().surface) && isAtEdge(place, screen))
            return QRect(place, QSize(1, 1));
    }
    return told.rect ? told.rect : known;
}

LayerSurface::Place LayerPopover::place() const
{
    const auto corner = placement_.position - screen().topLeft();
    const bool isInFront = dialogs_.isEmpty();
    return {.layer = isInFront ? LayerSurface::Layer::beforeAll : LayerSurface::Layer::behindWindows,
        .area = LayerSurface::Area::all,
        .edges = Qt::TopEdge | Qt::LeftEdge,
        .margins = {corner.x(), corner.y(), 0, 0},
        .size = window_.size(),
        .keyboard = isInFront ? LayerSurface::Keyboard::always : LayerSurface::Keyboard::never};
}

QRect LayerPopover::screen() const
{
    return QGuiApplication::screens().at(static_cast<qsizetype>(placement_.screen))->geometry();
}

void LayerPopover::updatePlacement()
{
    if (!role_ || !free_.isValid())
        return;
    auto screens = currentScreens();
    auto& [all, free, ratio] = screens[placement_.screen];
    free = availablePart(all, free_, placement_.edge);
    placement_ = placePopover(icon_, window_.size(), screens);
    role_->move(place());
    exclude();
}

// The stacking order of two surfaces in a layer is up to the compositor.
void LayerPopover::exclude()
{
    std::size_t number = 0;
    for (auto& catcher : catchers_) {
        if (number++ == placement_.screen)
            catcher.exclude(QRect(placement_.position - screen().topLeft(), window_.size()));
    }
}

bool LayerPopover::eventFilter(QObject* object, QEvent* event)
{
    const bool isShown = event->type() == QEvent::Show;
    if ((isShown || event->type() == QEvent::Hide) && object->isWindowType() && object != &window_) {
        auto& window = static_cast<QWindow&>(*object);
        if (isDialog(window))
            noteDialog(window, isShown);
    }
    return false;
}

void LayerPopover::noteDialog(QWindow& dialog, bool isOpen)
{
    if (!role_)
        return;
    dialogs_.removeIf([&](const QPointer<QWindow>& each) { return each.isNull() || each == &dialog; });
    if (isOpen)
        dialogs_ += &dialog;
    if (dialogs_.isEmpty() == !catchers_.empty())
        return;
    if (dialogs_.isEmpty())
        makeCatchers();
    else
        catchers_.clear();
    updatePlacement();
}

}  // namespace fadeloom
