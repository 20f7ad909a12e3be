#pragma once

#include "LPC_Wire/Records.h"

#include <chrono>
#include <memory>

namespace bench {

/// The framework's place in a measurement: listens, starts the real component beside this program on the data
/// root of the environment (see CFreshRoot), and answers its requests as plainly as vantor-lpc host does.
/// Whatever fails ends the program with a message. One thread at a time.
class CComponentHost
{
public:
    /// Starts listening and writes a data-encryption setup where there is none; nothing runs yet.
    explicit CComponentHost();
    /// Ends the component as End does.
    ~CComponentHost();
    CComponentHost(const CComponentHost&) = delete;
    CComponentHost& operator=(const CComponentHost&) = delete;

    /// Starts the component and waits for "initFinish"; the time from before it is started to the arrival of
    /// that. Again after End.
    std::chrono::nanoseconds Start();

    /// Sends a request and waits for its answer.
    lpc::Message Ask(const lpc::Message& request);
    /// Sends a notification.
    void Notify(const lpc::Message& notification);

    /// The component's process; 0 when none runs.
    int ProcessId() const;

    /// Ends the component in order and waits until it is gone. May be called again.
    void End();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace bench
