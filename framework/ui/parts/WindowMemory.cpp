#include "framework/ui/parts/WindowMemory.h"

#include "Base/FileUtil.h"
#include "Base/Log.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"

namespace framework {

WindowMemory WindowMemory::Load(const std::string& path)
{
    WindowMemory memory;
    std::string text;
    if (Base::FileUtil::ReadFile(path, text) && !protocol::ParseJSONStr(memory, text))
        return {};
    return memory;
}

void WindowMemory::Save(const std::string& path) const
{
    if (!Base::FileUtil::WriteFileAtomically(path, protocol::WriteJSONStr(*this)))
        BASE_WARN("The state of the window could not be kept in [%s].", path.c_str());
}

} // namespace framework
