#pragma once

#include "Base/Noncopyable.h"
#include "Protocol/JSONStruct/JSONKinds.h"

#include <functional>
#include <mutex>
#include <string>

namespace framework {

namespace stored {

/// What a file held. Neither tree nor problem: there is no file.
struct Content
{
    protocol::json::Tree tree;
    std::string problem;
};

Content Read(const std::string& path);

/// Renames the file to "<path>.damaged", or "<path>.damaged.2" and so on, writes one line and returns it as a
/// sentence.
std::string SetAside(const std::string& path, const std::string& problem);

/// False after one line.
[[nodiscard]] bool Write(const std::string& path, const protocol::json::Tree& tree);

} // namespace stored

/// What a piece of work has changed: nothing; what need not outlive the process; what is to be on the disk.
enum class Changed { Nothing, InMemory, OnDisk };

/// A structure with a list of fields that lives in a JSON file. A file that does not hold the structure is
/// set aside, never overwritten. What was changed is on the disk before the change is seen; readers never
/// wait for the disk. Any thread.
template<typename T>
class TStored : Base::CNoncopyable
{
public:
    /// Why the content cannot be used; empty: it can.
    using Check = std::function<std::string(const T&)>;

    /// makeFirst gives the content when there is no usable file; it is not written by that.
    TStored(std::string path, const std::function<T()>& makeFirst, const Check& check)
        : m_path(std::move(path))
    {
        stored::Content content = stored::Read(m_path);
        m_isNew = !content.tree;
        if (content.tree)
            content.problem = Take(content.tree.get(), check);
        if (!content.problem.empty()) {
            m_loadProblem = stored::SetAside(m_path, content.problem);
            m_isNew = true;
        }
        if (m_isNew)
            m_value = makeFirst();
    }

    /// Whether nothing was read from the disk.
    bool IsNew() const { return m_isNew; }

    /// Why the file was set aside; empty when it was not.
    const std::string& LoadProblem() const { return m_loadProblem; }

    T Get() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_value;
    }

    /// What look returns for the value. It must be quick.
    template<typename Look>
    auto With(Look look) const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return look(m_value);
    }

    /// Lets work change a copy, saves it and puts it in place; then calls after, before another change
    /// begins. work returns a Changed, or a bool: whether there is something for the disk. False, with
    /// nothing changed, when it returns that nothing is, or the file cannot be written.
    template<typename Work, typename After>
    [[nodiscard]] bool Change(Work work, After after)
    {
        std::lock_guard<std::mutex> changing(m_changing);
        T value = Get();
        const Changed changed = As(work(value));
        if (changed == Changed::Nothing)
            return false;
        if (changed == Changed::OnDisk && !stored::Write(m_path, protocol::json::Kind<T>::Write(value)))
            return false;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_value = std::move(value);
        }
        after();
        return true;
    }

    template<typename Work>
    [[nodiscard]] bool Change(Work work)
    {
        return Change(std::move(work), [] {});
    }

private:
    static Changed As(Changed changed) { return changed; }
    static Changed As(bool isChanged) { return isChanged ? Changed::OnDisk : Changed::Nothing; }

    std::string Take(const cJSON* item, const Check& check)
    {
        protocol::json::ReadError error;
        T value{};
        if (!protocol::json::Kind<T>::Read(item, value, error))
            return error.path + ": " + error.reason;
        std::string problem = check ? check(value) : std::string();
        if (problem.empty())
            m_value = std::move(value);
        return problem;
    }

    const std::string m_path;
    bool m_isNew = false;
    std::string m_loadProblem;
    std::mutex m_changing;
    mutable std::mutex m_mutex;
    T m_value{};
};

} // namespace framework
