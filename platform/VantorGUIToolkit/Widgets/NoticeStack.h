#pragma once

#include <QObject>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <vector>

namespace VantorGUIToolkit {

/// Where the notices of this process stand. Each screen has a stack of its own at the bottom right of the
/// area that is free of task bars, also where the layout runs from right to left. GUI thread.
class CNoticeStack : public QObject
{
    Q_OBJECT

public:
    /// As many as can be read at a time; the oldest goes when one more comes or when the screen is full.
    static constexpr int kMost = 4;

    /// Shows a notice that deletes itself when it is closed.
    void Add(QWidget* notice, QScreen* screen);

    /// The notices on screen, the oldest first.
    std::vector<QWidget*> Notices() const;

    void CloseAll();

    /// The stack of this process.
    static CNoticeStack& Instance();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Entry
    {
        QPointer<QWidget> notice;
        QPointer<QScreen> screen;
    };

    void Follow(QScreen* screen);
    void Close(std::size_t index);
    void Forget(const QObject* notice);
    void Arrange();
    bool ArrangeOn(QScreen* screen);

    std::vector<Entry> m_entries;
};

} // namespace VantorGUIToolkit
