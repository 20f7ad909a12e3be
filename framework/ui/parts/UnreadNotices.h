#pragma once

#include <QObject>

#include <cstdint>
#include <vector>

namespace framework {

/// Which notices nobody has marked as read yet. A notice's position counts from the newest one, which has 0.
/// GUI thread.
class CUnreadNotices : public QObject
{
    Q_OBJECT

public:
    int Count() const { return static_cast<int>(m_positions.size()); }
    bool Contains(int position) const;
    /// In ascending order, as they are kept on disk.
    const std::vector<std::int32_t>& Positions() const { return m_positions; }

    /// As they were kept; what cannot be a position is left out.
    void Set(std::vector<std::int32_t> positions);
    /// A notice has come.
    void Add();
    void MarkRead(int position);
    void MarkAllRead() { Set({}); }

signals:
    void Changed();

private:
    std::vector<std::int32_t> m_positions;
};

} // namespace framework
