#include "logical/Local/DatabaseSession/BaseDBConn.h"

#include "Base/Log.h"
#include "Base/RateLimit.h"
#include "Base/StringUtil.h"
#include "CommonMethodLib/UserDataPath.h"

#define DB_LOCATION                                                                                          \
    Base::LogLocation                                                                                        \
    {                                                                                                        \
        __FILE__, __LINE__, BASE_LOG_FUNCTION                                                                \
    }

namespace video {
namespace {

void LogError(const Base::LogLocation& location, int code, const char* message)
{
    static Base::CFaultLimit limit;
    if (const auto skipped = limit.Next())
        Base::CLog::Instance().Write(Base::LogLevel::Fatal, "", location,
                                     "data base error, error code: %d, error message: %s%s", code, message,
                                     skipped->c_str());
}

/// Runs a call into the database; its exceptions end here.
template<typename Call>
bool Guarded(const Base::LogLocation& location, Call call)
{
    try {
        return call();
    } catch (const Sqlite3DO::CSQLite3Exception& error) {
        LogError(location, error.Code(), error.what());
    } catch (const std::exception& error) {
        LogError(location, Sqlite3DO::kErrorGeneral, error.what());
    }
    return false;
}

} // namespace

CBaseDBConn::CBaseDBConn(const std::string& dbName)
    : CBaseDBConn(comm_methodlib::CUserDataPath::Instance().componentPath(), dbName)
{}

CBaseDBConn::CBaseDBConn(const std::string& folder, const std::string& dbName)
{
    const std::string path = Base::LocalToUTF8(folder + dbName);
    Guarded(DB_LOCATION, [&] { return m_connection.Open(path, true, std::string()); });
}

bool CBaseDBConn::Execute(const std::string& sql)
{
    return Guarded(DB_LOCATION, [&] { return m_connection.Execute(sql); });
}

bool CBaseDBConn::Execute(const std::string& sql, Sqlite3DO::CSQLite3Recordset& rows)
{
    return Guarded(DB_LOCATION, [&] { return m_connection.Execute(sql, rows); });
}

bool CBaseDBConn::ExecuteTogether(const std::vector<std::string>& statements)
{
    const bool bracketed = InTransaction();
    if (!bracketed && !Begin(OnFailure::KeepOthers))
        return false;
    bool worked = true;
    for (const std::string& sql : statements)
        worked = Execute(sql) && worked;
    return (bracketed || Commit()) && worked;
}

bool CBaseDBConn::Begin(OnFailure onFailure)
{
    return Guarded(DB_LOCATION, [&] { return m_connection.Begin(onFailure); });
}

bool CBaseDBConn::Commit()
{
    return Guarded(DB_LOCATION, [&] { return m_connection.Commit(); });
}

} // namespace video
