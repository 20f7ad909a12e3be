#include "Base/GuidUtil.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace Base::GuidUtil {

std::string CreateGuid()
{
    thread_local boost::uuids::random_generator generator;
    return boost::uuids::to_string(generator());
}

} // namespace Base::GuidUtil
