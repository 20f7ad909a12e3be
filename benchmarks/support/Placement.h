#pragma once

#include <functional>
#include <memory>

namespace bench {

/// On which processors the two processes of a measurement run.
enum class Placement { Free, OneCpu, TwoCpus };

/// "", "@1cpu" or "@2cpu".
const char* PlacementName(Placement placement);

/// Binds the calling thread, and the threads and processes that it starts from then on: the client to
/// processor 0, the server to 0 or 1.
void PlaceClient(Placement placement);
void PlaceServer(Placement placement);

/// What the calling thread starts while this object lives is placed as the server, what it starts later as
/// the client.
class CPlacedServer
{
public:
    explicit CPlacedServer(Placement placement) : m_placement(placement) { PlaceServer(placement); }
    ~CPlacedServer() { PlaceClient(m_placement); }
    CPlacedServer(const CPlacedServer&) = delete;
    CPlacedServer& operator=(const CPlacedServer&) = delete;

private:
    const Placement m_placement;
};

/// A second process that runs a function and is ended with this object.
class CSecondProcess
{
public:
    /// The child runs body after which it waits to be ended; the constructor returns when body has returned
    /// in the child.
    explicit CSecondProcess(const std::function<void()>& body);
    ~CSecondProcess();
    CSecondProcess(const CSecondProcess&) = delete;
    CSecondProcess& operator=(const CSecondProcess&) = delete;

private:
    int m_child = -1;
};

/// Gives this run a data root and a runtime folder of its own, removed at the end.
class CFreshRoot
{
public:
    CFreshRoot();
    ~CFreshRoot();
    CFreshRoot(const CFreshRoot&) = delete;
    CFreshRoot& operator=(const CFreshRoot&) = delete;

private:
    struct Path;
    std::unique_ptr<Path> m_path;
};

} // namespace bench
