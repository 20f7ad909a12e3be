#pragma once

namespace Base {

/// Base of classes that own something unique: neither copyable nor assignable.
class CNoncopyable
{
public:
    CNoncopyable(const CNoncopyable&) = delete;
    CNoncopyable& operator=(const CNoncopyable&) = delete;

protected:
    CNoncopyable() = default;
    ~CNoncopyable() = default;
};

} // namespace Base
