#pragma once

#include "UiDataController/Tree/Samples/SampleElements.h"

#include <random>

/// Makes changes that a real source could make, from a fixed seed.
class RandomSite
{
public:
    explicit RandomSite(UiDataController::CSampleElements& source) : m_source(source) {}

    /// Some changes made at one moment.
    UiDataController::ElementChanges Next()
    {
        using namespace UiDataController;
        m_elements = m_source.Snapshot().elements;
        ElementChanges changes;
        for (int left = 1 + Below(4); left > 0; --left) {
            if (m_elements.size() < 8 || Below(3) == 0)
                Add(changes);
            else if (m_elements.size() > 40 || Below(3) == 0)
                Remove(changes, m_elements[std::size_t(Below(int(m_elements.size())))].id);
            else
                Change(changes);
        }
        return changes;
    }

    int Below(int limit) { return int(m_random() % std::uint32_t(limit)); }

private:
    using Info = UiDataController::ElementInfo;
    using Kind = UiDataController::ElementChange::Kind;
    using Type = UiDataController::ElementType;

    /// One of a type; an empty identifier also where there is one.
    QString Any(Type type)
    {
        std::vector<QString> ids = {QString()};
        for (const Info& info : m_elements)
            if (info.type == type)
                ids.push_back(info.id);
        return ids[std::size_t(Below(int(ids.size())))];
    }

    void Add(UiDataController::ElementChanges& changes)
    {
        Info info;
        const Type types[] = {Type::Device, Type::Group, Type::StorageServer, Type::Channel, Type::Channel};
        info.type = types[Below(5)];
        info.id = QString("e%1").arg(++m_made);
        info.name = Name();
        if (info.type == Type::Channel) {
            info.deviceId = Any(Type::Device);
            info.number = m_made;
        }
        if (info.type == Type::Channel || info.type == Type::Group)
            info.groupId = Any(Type::Group);
        m_elements.push_back(info);
        changes.push_back({Kind::Add, info});
    }

    void Change(UiDataController::ElementChanges& changes)
    {
        Info& info = m_elements[std::size_t(Below(int(m_elements.size())))];
        switch (Below(4)) {
        case 0:
            info.name = Name();
            break;
        case 1:
            info.number = info.type == Type::Channel ? ++m_made : info.number;
            break;
        case 2: // groups stay, as they could come to stand in themselves
            info.groupId = info.type == Type::Channel ? Any(Type::Group) : info.groupId;
            break;
        default:
            info.state = UiDataController::ElementState(Below(3));
        }
        changes.push_back({Kind::Change, info});
    }

    void Remove(UiDataController::ElementChanges& changes, const QString& id)
    {
        const std::vector<Info> elements = m_elements;
        for (const Info& info : elements)
            if (info.deviceId == id || info.groupId == id)
                Remove(changes, info.id);
        for (std::size_t at = 0; at < m_elements.size(); ++at)
            if (m_elements[at].id == id) {
                changes.push_back({Kind::Remove, m_elements[at]});
                m_elements.erase(m_elements.begin() + std::ptrdiff_t(at));
                return;
            }
    }

    QString Name() { return QString(QChar('a' + Below(6))) + QChar('a' + Below(6)); }

    UiDataController::CSampleElements& m_source;
    std::vector<Info> m_elements;
    std::mt19937 m_random{20};
    int m_made = 0;
};
