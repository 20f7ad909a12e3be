#pragma once

#include "Base/Log.h"
#include "QxNetSDK/QxNetSDK.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <type_traits>

/// The forms in which a device's configuration is read and written. Every one gives 0, or -1 after exactly
/// one error line with the SDK's error pair, whose place is the operation's. Arguments that cannot be right
/// (a negative handle or channel, a null pointer) and memory that cannot be had give -1 with no call and no
/// line. Nothing throws; any thread.
namespace video::sdk_call {

/// What every call is told.
struct Target
{
    Base::LogLocation location; ///< of the operation
    int login;                  ///< 0 or more
    int channel;                ///< from 1; 0 is the device

    bool IsValid() const { return login >= 0 && channel >= 0; }
};

/// The error line "<function> failed, [<error>]-[<module error>]."; always -1.
int Failed(const char* function, const Base::LogLocation& location);

/// Set the structure's size field, its first member, before the call.
int Read(const Target& target, uint32_t command, void* structure, uint32_t size);
int Write(const Target& target, uint32_t command, void* structure, uint32_t size);

template<class Structure>
int ReadConfig(const Target& target, uint32_t command, Structure* structure)
{
    return Read(target, command, structure, sizeof(Structure));
}

template<class Structure>
int WriteConfig(const Target& target, uint32_t command, Structure* structure)
{
    return Write(target, command, structure, sizeof(Structure));
}

/// Reads the structure, lets change alter it, and writes it. Nothing is written when the read fails.
template<class Structure, class Change>
int ChangeConfig(const Target& target, uint32_t getCommand, uint32_t setCommand, Change change)
{
    const std::unique_ptr<Structure> current(new (std::nothrow) Structure());
    if (!current || ReadConfig(target, getCommand, current.get()) != 0)
        return -1;
    change(*current);
    return WriteConfig(target, setCommand, current.get());
}

/// The same, where the change is to copy part to where place(structure) points.
template<class Structure, class Part, class Place>
int ChangePart(const Target& target, uint32_t getCommand, uint32_t setCommand, const Part* part, Place place)
{
    if (part == nullptr)
        return -1;
    return ChangeConfig<Structure>(target, getCommand, setCommand, [&](Structure& current) {
        Part* changed = place(current);
        std::memcpy(changed, part, sizeof(Part));
    });
}

/// Count items in one exchange: a group and a structure each.
struct Batch
{
    Base::LogLocation location; ///< of the operation
    int login;                  ///< 0 or more
    int count;                  ///< 1 to 256
    const char* parameter;      ///< of the line of an item that failed, such as "GET_FACE_DETECT"
};

/// 0 too when single items failed; each of them has a line of its own, and its structure is zero after a
/// read.
int ReadItems(const Batch& batch, uint32_t command, tagNET_DVR_CHANNEL_GROUP* groups, void* structures,
              uint32_t size);
int WriteItems(const Batch& batch, uint32_t command, tagNET_DVR_CHANNEL_GROUP* groups, void* structures,
               uint32_t size);

} // namespace video::sdk_call

/// The place where an operation stands, for its log lines.
#define SDK_CALL_HERE                                                                                        \
    ::Base::LogLocation                                                                                      \
    {                                                                                                        \
        __FILE__, __LINE__, BASE_LOG_FUNCTION                                                                \
    }
