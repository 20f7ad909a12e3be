#include "Base/FileUtil.h"

namespace Base::FileUtil {

namespace {

std::string& ExeDirUtf8()
{
    static std::string* const dir = new std::string();
    return *dir;
}

} // namespace

void InitCurExeDirUtf8(const std::string& dir)
{
    ExeDirUtf8() = dir;
}

const std::string& GetCurExeDirUtf8()
{
    return ExeDirUtf8();
}

} // namespace Base::FileUtil
