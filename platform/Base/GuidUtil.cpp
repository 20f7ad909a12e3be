#include "Base/GuidUtil.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <chrono>

namespace Base::GuidUtil {
namespace {

/// Where RFC 9562 (section 5.7) has the time and the version of an identifier that sorts by time.
constexpr std::size_t kTimeBytes = 6;
constexpr std::size_t kVersionByte = 6;
constexpr std::uint8_t kVersion7 = 0x70;

std::uint64_t MillisecondsSince1970()
{
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(duration_cast<milliseconds>(now).count());
}

} // namespace

std::string CreateGuid()
{
    thread_local boost::uuids::random_generator generator;
    boost::uuids::uuid guid = generator();
    std::uint64_t time = MillisecondsSince1970();
    for (std::size_t byte = kTimeBytes; byte-- > 0; time >>= 8)
        guid.data[byte] = static_cast<std::uint8_t>(time);
    guid.data[kVersionByte] = static_cast<std::uint8_t>((guid.data[kVersionByte] & 0x0F) | kVersion7);
    return boost::uuids::to_string(guid);
}

} // namespace Base::GuidUtil
