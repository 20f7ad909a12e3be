#pragma once

#include "framework/core/DeviceLinks.h"
#include "framework/core/FrameworkSettings.h"

#include <QObject>
#include <QWidget>

namespace framework {

class CEventRelay;
class CFrameworkCore;
class CReport;
class CUnreadNotices;
class IComponentWindows;
class ILocalFileSource;
struct WindowRow;

/// Makes the pages of all tabs and connects them with what they show. GUI thread.
class CPages : public QObject
{
    Q_OBJECT

public:
    CPages(CFrameworkCore& core, CEventRelay& relay, IComponentWindows& windows, ILocalFileSource& files,
           CUnreadNotices& unread, CReport& report);

    /// The page of a row; the parent owns it.
    QWidget* Make(const WindowRow& row, QWidget* parent);

signals:
    /// A page asks for a tab.
    void OpenRequested(const QString& name);
    void ChoicesApplied(const framework::FrameworkChoices& before, const framework::FrameworkChoices& now);
    /// To the pages: dates and times look different from now on.
    void FormatsChanged();
    /// To the pages: the catalogue has more files.
    void LocalFilesChanged();

private:
    QWidget* MakeOwn(const QString& name, QWidget* parent);
    QWidget* MakeHome(QWidget* parent);
    QWidget* MakeDevices(QWidget* parent);
    void TestDevice(const DeviceEntry& entry, CDeviceLinks::OnTried onTried);
    QWidget* MakeLocalFiles(QWidget* parent);
    QWidget* MakeNotices(QWidget* parent);
    QWidget* MakeOperations(QWidget* parent);
    QWidget* MakeUsers(QWidget* parent);
    QWidget* MakeSettings(QWidget* parent);

    CFrameworkCore& m_core;
    CEventRelay& m_relay;
    IComponentWindows& m_windows;
    ILocalFileSource& m_files;
    CUnreadNotices& m_unread;
    CReport& m_report;
};

} // namespace framework
