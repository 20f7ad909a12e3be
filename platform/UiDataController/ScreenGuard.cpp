#include "UiDataController/ScreenGuard.h"

#include "Base/Log.h"

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>

namespace UiDataController {

namespace {

QtMessageHandler g_former = nullptr;
int g_exitCode = 0;
/// The first that Qt's platform had to say: later messages only follow from it.
QByteArray g_reason;

[[noreturn]] void EndProcess(const QByteArray& reason)
{
    BASE_FATAL("No screen can be used: %s", reason.constData());
    Base::CLog::Instance().UninitLog();
    std::fprintf(stderr, "No screen can be used: %s\n", reason.constData());
    std::fflush(stderr);
    std::_Exit(g_exitCode);
}

void Handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg)
        EndProcess(g_reason.isEmpty() ? text.simplified().toLocal8Bit() : g_reason);
    if (!QByteArray(context.category).startsWith("qt.qpa"))
        return g_former(type, context, text);
    if (g_reason.isEmpty())
        g_reason = text.simplified().toLocal8Bit();
}

} // namespace

CScreenGuard::CScreenGuard(int exitCode) : m_former(qInstallMessageHandler(Handle))
{
    g_former = m_former;
    g_exitCode = exitCode;
}

CScreenGuard::~CScreenGuard()
{
    qInstallMessageHandler(m_former);
}

} // namespace UiDataController
