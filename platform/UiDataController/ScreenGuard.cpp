#include "UiDataController/ScreenGuard.h"

#include "Base/Log.h"

#include <QByteArray>
#include <QDebug>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace UiDataController {

namespace {

/// What the handler of Qt's messages knows of the guard. Never destroyed, as the process may exit within it.
struct Guarded
{
    QtMessageHandler former = nullptr;
    std::thread::id thread;
    int exitCode = 0;
    /// What Qt's platform warned of. The first is the reason of a fatal error, the others only follow from
    /// it.
    QStringList warnings;
};

Guarded& TheGuarded()
{
    static Guarded* const guarded = new Guarded();
    return *guarded;
}

/// Any other fatal message is a fault of a program, and to be reported as one.
bool IsAboutTheScreen(QtMsgType type, const QString& text)
{
    return type == QtFatalMsg && text.contains(QLatin1String("no Qt platform plugin"));
}

[[noreturn]] void EndProcess(const QString& text)
{
    const QByteArray reason = text.simplified().toLocal8Bit();
    BASE_FATAL("No screen can be used: %s", reason.constData());
    Base::CLog::Instance().UninitLog();
    std::fprintf(stderr, "No screen can be used: %s\n", reason.constData());
    std::fflush(stderr);
    std::_Exit(TheGuarded().exitCode);
}

void Handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    Guarded& guarded = TheGuarded();
    if (std::this_thread::get_id() != guarded.thread)
        return guarded.former(type, context, text);
    if (IsAboutTheScreen(type, text))
        EndProcess(guarded.warnings.value(0, text));
    if (type == QtWarningMsg && QByteArray(context.category).startsWith("qt.qpa"))
        guarded.warnings.append(text);
    else
        guarded.former(type, context, text);
}

} // namespace

CScreenGuard::CScreenGuard(int exitCode)
{
    Guarded& guarded = TheGuarded();
    guarded.former = qInstallMessageHandler(nullptr);
    guarded.thread = std::this_thread::get_id();
    guarded.exitCode = exitCode;
    qInstallMessageHandler(Handle);
}

CScreenGuard::~CScreenGuard()
{
    Guarded& guarded = TheGuarded();
    qInstallMessageHandler(guarded.former);
    for (const QString& text : qAsConst(guarded.warnings))
        qWarning().noquote() << text;
    guarded.warnings.clear();
}

} // namespace UiDataController
