#include "SingleApplication/InstanceClaim.h"

#include "Base/Log.h"
#include "SingleApplication/ProcessStamp.h"

#include <QByteArray>
#include <QCryptographicHash>

#include <thread>

namespace {

constexpr std::chrono::milliseconds kPoll(20);

/// Every further attempt means that another process went away at just that moment.
constexpr int kMaxAttempts = 100;

} // namespace

CInstanceClaim::Result CInstanceClaim::Take()
{
    if (m_owned)
        return Result::Owned;
    for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
        if (!m_block.Open("vantor-" + m_key))
            return Result::Unavailable;
        MakeReadable();
        const bool taken = TakeWord();
        // An ending owner takes the name away before the claim. A claim, ours or another's, in a block
        // without a name counts for nothing, since the next process would create a new block.
        if (!m_block.IsNamed())
            continue;
        m_owned = taken;
        return taken ? Result::Owned : Result::Taken;
    }
    return Result::Unavailable;
}

void CInstanceClaim::MakeReadable()
{
    std::atomic<std::uint64_t>& header = m_block.Words()->header;
    const auto deadline = std::chrono::steady_clock::now() + m_patience;
    std::uint64_t seen = header.load();
    while (seen != CInstanceBlock::kHeader) {
        if (seen != 0 && std::chrono::steady_clock::now() < deadline) {
            std::this_thread::sleep_for(kPoll);
            seen = header.load();
            continue;
        }
        if (seen != 0)
            BASE_WARN("SingleApplication: Shared memory block was inconsistent and is taken over.");
        if (header.compare_exchange_strong(seen, CInstanceBlock::kHeader))
            return;
    }
}

bool CInstanceClaim::TakeWord()
{
    std::atomic<std::uint64_t>& owner = m_block.Words()->owner;
    std::uint64_t current = owner.load();
    while (current == 0 || !InstanceSystem::IsAlive(current)) {
        if (owner.compare_exchange_strong(current, InstanceSystem::OwnStamp()))
            return true;
    }
    return false;
}

void CInstanceClaim::Release()
{
    if (m_owned) {
        m_block.RemoveName();
        m_block.Words()->owner.store(0);
    }
    m_owned = false;
    m_block.Close();
}

std::string InstanceKey(const std::string& identity, const std::string& user, const std::string& dataRoot)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const std::string& part : {identity, user, dataRoot})
        hash.addData(part.c_str(),
                     static_cast<int>(part.size()) + 1); // with the final zero, so that parts do not merge
    return hash.result().toHex().left(16).toStdString();
}
