#pragma once

#include <QWidget>

#include <memory>

/// A window of one process inside a window of another.
namespace embedding {

/// Holds a window of another process, its guest, and keeps it as large as itself. GUI thread.
///
/// The order decides: the guest is created but not shown, then embedded, then shown by its own process. A
/// guest that is hidden in its own process stays embedded.
class CGuestContainer : public QWidget
{
    Q_OBJECT

public:
    explicit CGuestContainer(QWidget* parent = nullptr);
    /// Releases the guest.
    ~CGuestContainer() override;

    /// Takes the window in; one that was there is released. False, with one log line, when there is no such
    /// window.
    [[nodiscard]] bool Embed(WId guest);

    /// Gives the guest back, unmapped, so that it survives this container and can be embedded again. Nothing
    /// without a guest.
    void Release();

    /// 0 without a guest.
    WId Guest() const;

    /// Tells the guest at once how large it is and where on the screen. The container does so by itself after
    /// every move, resize and show of itself and of the widgets around it.
    void TellPosition();

signals:
    /// The guest's window is gone: its process ended, or destroyed it. The container is empty afterwards.
    void GuestLost();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace embedding
