#include "SingleApplication/SingleApplication.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "SingleApplication/InstanceClaim.h"
#include "SingleApplication/ProcessStamp.h"

#include <QLocalServer>
#include <QLocalSocket>

#include <filesystem>

namespace {

/// How long a server is given to accept where only it can tell whether another process runs.
constexpr int kProbeMs = 1000;

/// One spelling for each folder, whether it exists already or not.
std::string DataRoot()
{
    std::error_code error;
    const std::string root = Base::FileUtil::UserDataRoot();
    const auto canonical = std::filesystem::weakly_canonical(root, error);
    return error ? root : (canonical / "").lexically_normal().string();
}

bool AnotherOneAnswers(const QString& serverName)
{
    QLocalSocket socket;
    socket.connectToServer(serverName);
    return socket.waitForConnected(kProbeMs);
}

} // namespace

SingleApplication::SingleApplication(int& argc, char** argv, const QString& identity)
    : QApplication(argc, argv)
{
    const std::string key = InstanceKey(identity.toStdString(), InstanceSystem::UserIdentity(), DataRoot());
    m_claim = std::make_unique<CInstanceClaim>(key);
    const CInstanceClaim::Result result = m_claim->Take();
    if (result == CInstanceClaim::Result::Taken)
        return;
    if (result == CInstanceClaim::Result::Unavailable) {
        BASE_ERROR("SingleApplication: Unable to attach to shared memory block.");
        if (AnotherOneAnswers(QString::fromStdString(InstanceSystem::ServerName(key))))
            return;
    }
    ListenAsPrimary(key);
}

SingleApplication::~SingleApplication()
{
    deleteInstanceData();
}

bool SingleApplication::isPrimary() const
{
    return m_server && m_server->isListening();
}

void SingleApplication::deleteInstanceData()
{
    m_server.reset();
    m_claim.reset();
}

void SingleApplication::ListenAsPrimary(const std::string& key)
{
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = m_server->nextPendingConnection())
            delete caller; // it only asked whether somebody is here
    });
    const QString name = QString::fromStdString(InstanceSystem::ServerName(key));
    QLocalServer::removeServer(name); // what a killed process left behind
    if (m_server->listen(name))
        return;
    BASE_ERROR("SingleApplication: The local server does not start: %s.",
               m_server->errorString().toUtf8().constData());
    m_claim->Release();
}
