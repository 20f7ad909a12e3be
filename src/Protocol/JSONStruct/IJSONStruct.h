#pragma once

struct cJSON;

namespace protocol {

/// Base of all message structures: what travels as the JSON body of the local channel. Messages are plain
/// values; they are described by one list of their fields, see JSONMessage.h.
class IJSONStruct
{
public:
    /// Fills the structure from the item that stands under its key; never null. On failure the structure is
    /// unchanged and one line has been logged that names the field and shows the item (LoggableText.h); of a
    /// flood of failures not each has its line.
    [[nodiscard]] virtual bool FromJSON(const cJSON* item) = 0;

    /// Adds the structure to the object parent under the given key.
    virtual void ToJSON(cJSON* parent, const char* key) const = 0;

    /// The key of the body's one relevant member; empty for a structure that is the whole body.
    virtual const char* Key() const = 0;

    virtual ~IJSONStruct() = default;

protected:
    IJSONStruct() = default;
    IJSONStruct(const IJSONStruct&) = default;
    IJSONStruct& operator=(const IJSONStruct&) = default;
};

/// Payloads of methods of the local channel.
class ILPCData : public IJSONStruct
{};

/// Websocket notifications; they are passed around as shared pointers.
class IWebsocketData : public IJSONStruct
{};

/// Bodies of HTTP-style routes, in either direction.
class IInboundData : public IJSONStruct
{};

} // namespace protocol
