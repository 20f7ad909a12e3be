#include "UiDataController/ScreenGuard.h"

#include "Base/Log.h"

#include <QByteArray>
#include <QDebug>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace UiDataController {

namespace {

QtMessageHandler g_former = nullptr;
int g_exitCode = 0;
/// What Qt's platform warned of. The first is the reason of a fatal error, the others only follow from it.
QStringList g_warnings;

[[noreturn]] void EndProcess(const QString& text)
{
    const QByteArray reason = text.simplified().toLocal8Bit();
    BASE_FATAL("No screen can be used: %s", reason.constData());
    Base::CLog::Instance().UninitLog();
    std::fprintf(stderr, "No screen can be used: %s\n", reason.constData());
    std::fflush(stderr);
    std::_Exit(g_exitCode);
}

void Handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg)
        EndProcess(g_warnings.value(0, text));
    if (type == QtWarningMsg && QByteArray(context.category).startsWith("qt.qpa"))
        g_warnings.append(text);
    else
        g_former(type, context, text);
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
    for (const QString& text : qAsConst(g_warnings))
        qWarning().noquote() << text;
    g_warnings.clear();
}

} // namespace UiDataController
