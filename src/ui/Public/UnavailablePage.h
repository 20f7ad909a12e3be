#pragma once

#include <QWidget>

namespace video {

/// Stands where a page will be: its title, and that it is not available yet. GUI thread.
class CUnavailablePage : public QWidget
{
    Q_OBJECT

public:
    explicit CUnavailablePage(const QString& title);

protected:
    /// The framework decides when a page goes; requests from the window system are ignored.
    void closeEvent(QCloseEvent* event) override;
};

} // namespace video
