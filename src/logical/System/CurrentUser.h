#pragma once

#include "Base/Noncopyable.h"

#include <mutex>
#include <string>
#include <vector>

namespace video {

/// The person in front of the client.
struct User
{
    std::string name;                     ///< empty until the framework names one
    std::vector<std::string> permissions; ///< the framework's words, for example "liveView"

    bool May(const std::string& what) const;
};

/// Who is at work now, as the framework last told. Any thread.
class CCurrentUser : Base::CNoncopyable
{
public:
    static CCurrentUser& Instance();

    void Set(User user);
    User Get() const;

private:
    mutable std::mutex m_mutex;
    User m_user;
};

} // namespace video
