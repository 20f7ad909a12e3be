#pragma once

#include "Base/Noncopyable.h"

#include <atomic>
#include <cstdint>
#include <string>

/// What the processes of one application share: two words, changed by compare-and-exchange only, so that a
/// process that dies at any point leaves a block which the next one can read.
struct InstanceWords
{
    /// 0 in a new block, CInstanceBlock::kHeader afterwards.
    std::atomic<std::uint64_t> header;
    /// The stamp of the process that owns the claim (see ProcessStamp.h); 0 for none.
    std::atomic<std::uint64_t> owner;
};

/// One named block of shared memory, readable and writable by this user only. One thread.
class CInstanceBlock : Base::CNoncopyable
{
public:
    /// Marks a block of this form, version 1.
    static constexpr std::uint64_t kHeader = 0x0156'414E'5453'4131;

    CInstanceBlock() = default;
    ~CInstanceBlock() { Close(); }

    /// Opens the block of this name and creates it, zeroed, when there is none. name: letters, digits and
    /// "-". False when the system refuses.
    [[nodiscard]] bool Open(const std::string& name);

    /// nullptr unless open.
    InstanceWords* Words() const { return m_words; }

    /// True while the name still leads to this block. False after another process removed it: then a claim in
    /// it counts for nothing.
    bool IsNamed() const;

    /// Takes the name away. Only for the owner of the claim, while it still owns it.
    void RemoveName();

    /// May be called again.
    void Close();

private:
    std::string m_name;
    InstanceWords* m_words = nullptr;
    std::intptr_t m_handle = -1;
};
