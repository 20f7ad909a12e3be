#pragma once

#include <QApplication>
#include <QString>

#include <memory>

class CInstanceClaim;
class QLocalServer;

/// An application of which one process runs at a time for each user and data root.
///
/// The constructor claims a small shared-memory block and, with the claim, listens on a local server. Both
/// names are a short hash of the identity, the user and Base::FileUtil::UserDataRoot(), so that applications
/// of different roots never meet. A claim ends with its process: one that was killed, even while starting, is
/// taken over at once by the next start. Of several starts at the same moment exactly one becomes primary.
/// The constructor never waits, but for a damaged block: that is given 5 s to become readable and is then
/// taken over.
///
/// GUI thread only, as every QApplication.
class SingleApplication : public QApplication
{
    Q_OBJECT

public:
    /// identity names the application, for example "Vantor.Video.C"; any characters, never shown to the user.
    SingleApplication(int& argc, char** argv, const QString& identity);
    ~SingleApplication() override;

    /// True when this process owns the local server, that is, when no other one runs for this user and data
    /// root.
    bool isPrimary() const;

    /// Gives back the server and the block, so that another process may become primary. For a second
    /// instance, before it ends; the destructor does it for the primary one. May be called again.
    void deleteInstanceData();

private:
    void ListenAsPrimary(const std::string& key);

    std::unique_ptr<CInstanceClaim> m_claim;
    std::unique_ptr<QLocalServer> m_server;
};
