// SPDX-License-Identifier: MIT
#include "platform/freedesktop/layer_shell.h"
#include "platform/menu_backdrop.h"

#include <QEnterEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QRasterWindow>
#include <QScreen>
#include <QTimer>

#include <LayerShellQt/Window>
#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace tarnwick {

namespace {

using namespace std::chrono_literals;
using LayerShellQt::Window;

/// Nothing tells the place of a pointer that does not exist, or whose button is still held.
constexpr auto pointerTime = 500ms;

/// An invisible window over one screen.
class Layer : public QRasterWindow
{
public:
    Layer(QScreen& screen, bool coversPanels)
    {
        QSurfaceFormat transparent = format();
        transparent.setAlphaBufferSize(8);
        setFormat(transparent);
        setFlag(Qt::FramelessWindowHint);
        setFlag(Qt::WindowTransparentForInput, !coversPanels);
        setScreen(&screen);
        setGeometry(screen.geometry());
        auto* const surface = Window::get(this);
        surface->setScope(QStringLiteral("menu"));
        surface->setLayer(Window::LayerOverlay);
        surface->setAnchors(
            {Window::AnchorTop, Window::AnchorBottom, Window::AnchorLeft, Window::AnchorRight});
        surface->setExclusiveZone(coversPanels ? -1 : 0);
        // An exclusive one would keep the keyboard from a terminal that comes up.
        surface->setKeyboardInteractivity(coversPanels ? Window::KeyboardInteractivityOnDemand
                                                       : Window::KeyboardInteractivityNone);
    }

    /// Where the pointer is in it, once it has entered it.
    [[nodiscard]] std::optional<QPoint> pointer() const { return m_pointer; }
    void onChange(std::function<void()> handler) { m_handler = std::move(handler); }

protected:
    bool event(QEvent* event) override
    {
        const bool isHandled = QRasterWindow::event(event);
        if (event->type() == QEvent::Enter)
            m_pointer = static_cast<QEnterEvent*>(event)->position().toPoint();
        if (event->type() == QEvent::Enter || event->type() == QEvent::Expose)
            m_handler();
        return isHandled;
    }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(QRect({}, size()), Qt::transparent);
    }

private:
    std::optional<QPoint> m_pointer;
    std::function<void()> m_handler;
};

struct DeleteLater
{
    void operator()(QObject* object) const { object->deleteLater(); }
};
using LayerPointer = std::unique_ptr<Layer, DeleteLater>;

/// What is left of a screen when its panels take all that `room` is smaller. Compositors tell the
/// size alone: the panels count as on the sides where the pointer is, which has clicked on one.
QRect besidePanels(QSize screen, QSize room, QPoint pointer)
{
    const bool isLeft = pointer.x() < screen.width() / 2;
    const bool isAbove = pointer.y() < screen.height() / 2;
    return {QPoint(isLeft ? screen.width() - room.width() : 0,
                   isAbove ? screen.height() - room.height() : 0),
            room};
}

/// Each screen has a window that covers it and one that the panels leave room for, whose size is
/// all that is wanted of it. sway tells the covering window of a pointer that rests only when
/// another one is shown after it.
class LayerBackdrop : public MenuBackdrop
{
public:
    LayerBackdrop()
    {
        m_wait.setSingleShot(true);
        m_wait.setInterval(pointerTime);
        connect(&m_wait, &QTimer::timeout, this, [this] {
            const Sheet& first = m_sheets.front();
            finish(first, QRect(QPoint(), first.cover->size()).center());
        });
        connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* focused) {
            const auto isFocused = [focused](const Sheet& sheet) {
                return sheet.cover.get() == focused;
            };
            if (isShown() && std::ranges::none_of(m_sheets, isFocused))
                Q_EMIT left();
        });
    }

    void show() override
    {
        hide();
        for (QScreen* const screen : QGuiApplication::screens()) {
            m_sheets.push_back(
                {LayerPointer(new Layer(*screen, true)), LayerPointer(new Layer(*screen, false))});
        }
        for (const Sheet& sheet : m_sheets) {
            for (Layer* const layer : {sheet.cover.get(), sheet.room.get()}) {
                layer->onChange([this] { look(); });
                layer->show();
            }
        }
        m_wait.start();
    }

    void hide() override
    {
        m_wait.stop();
        m_sheets.clear();
    }

private:
    struct Sheet
    {
        LayerPointer cover;
        LayerPointer room;
    };

    [[nodiscard]] bool isShown() const { return !m_sheets.empty() && !m_wait.isActive(); }

    void look()
    {
        const auto isReady = [](const Sheet& sheet) {
            return sheet.cover->pointer() && sheet.room->isExposed();
        };
        const auto found = std::ranges::find_if(m_sheets, isReady);
        if (m_wait.isActive() && found != m_sheets.end())
            finish(*found, *found->cover->pointer());
    }

    void finish(const Sheet& sheet, QPoint pointer)
    {
        m_wait.stop();
        const QPoint origin = sheet.cover->screen()->geometry().topLeft();
        const QRect available = besidePanels(sheet.cover->size(), sheet.room->size(), pointer);
        Q_EMIT ready(*sheet.cover, origin + pointer, available.translated(origin));
    }

    std::vector<Sheet> m_sheets;
    QTimer m_wait;
};

} // namespace

std::unique_ptr<MenuBackdrop> makeMenuBackdrop()
{
    return hasLayerShell() ? std::make_unique<LayerBackdrop>() : nullptr;
}

} // namespace tarnwick
