#include "logical/System/CurrentUser.h"

#include "Base/Singleton.h"

#include <algorithm>

namespace video {

bool User::May(const std::string& what) const
{
    return std::find(permissions.begin(), permissions.end(), what) != permissions.end();
}

CCurrentUser& CCurrentUser::Instance()
{
    return Base::CSingleton<CCurrentUser>::Instance();
}

void CCurrentUser::Set(User user)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_user = std::move(user);
}

User CCurrentUser::Get() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_user;
}

} // namespace video
