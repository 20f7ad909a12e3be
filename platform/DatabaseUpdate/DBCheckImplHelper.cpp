#include "DatabaseUpdate/DBCheckImplHelper.h"

#include "Base/Encrypt.h"
#include "DatabaseUpdate/DataEncryptionMgr.h"
#include "DatabaseUpdate/DatabaseUpdater.h"

#include <exception>

namespace DatabaseUpdate {
namespace {

std::string Title(const DBCheckImplHelperParams& params, const std::string& name)
{
    for (const ComponentRecord& record : params.components) {
        if (record.database == name)
            return name + " of " + record.component + " (" + record.service + ")";
    }
    return name;
}

} // namespace

bool CDBCheckImplHelper::checkAndUpdateDB(const DBCheckImplHelperParams& params,
                                          const std::vector<std::string>& databases, std::string& message)
{
    std::string key = CDataEncryptionMgr::Instance().Key();
    bool updated = true;
    for (const std::string& name : databases) {
        try {
            CDatabaseUpdater(params, name, key).Run();
        } catch (const std::exception& error) {
            message = Title(params, name) + ": " + error.what();
            updated = false;
            break;
        }
    }
    Base::Encrypt::Wipe(key);
    return updated;
}

} // namespace DatabaseUpdate
