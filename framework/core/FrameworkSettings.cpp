#include "framework/core/FrameworkSettings.h"

#include "framework/core/Stored.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace framework {

namespace {

constexpr std::array<std::string_view, 4> kSkins{"BlackRedSkin", "GreyRedSkin", "BlueSkin", "NeutralSkin"};
constexpr std::string_view kChosen = "chosen"; ///< a mark, not a choice

/// In what two differ.
struct Differences
{
    bool any = false;
    std::string names; ///< of the choices that a user made

    Differences(const FrameworkChoices& left, const FrameworkChoices& right)
    {
        protocol::ForEachField<FrameworkChoices>([&](const auto& field) {
            if (left.*field.member != right.*field.member)
                Add(field.key);
        });
    }

    void Add(std::string_view key)
    {
        any = true;
        if (key != kChosen)
            names.append(names.empty() ? "" : ", ").append(key);
    }
};

void SetIfEmpty(std::string& text, const std::string& otherwise)
{
    if (text.empty())
        text = otherwise;
}

} // namespace

struct CFrameworkSettings::State
{
    FrameworkChoices defaults;
    std::function<void(const std::string&)> onChanged;
    TStored<FrameworkChoices> stored;

    State(std::string path, const std::string& dataRoot, std::function<void(const std::string&)> changed)
        : onChanged(std::move(changed)), stored(std::move(path), [] { return FrameworkChoices(); }, {})
    {
        defaults.videoPath = dataRoot + "Video/";
        defaults.picturePath = dataRoot + "Picture/";
    }

    FrameworkChoices Completed(FrameworkChoices choices) const
    {
        if (std::find(kSkins.begin(), kSkins.end(), choices.skin) == kSkins.end())
            choices.skin = defaults.skin;
        SetIfEmpty(choices.dateFormat, defaults.dateFormat);
        SetIfEmpty(choices.timeFormat, defaults.timeFormat);
        SetIfEmpty(choices.videoPath, defaults.videoPath);
        SetIfEmpty(choices.picturePath, defaults.picturePath);
        return choices;
    }
};

CFrameworkSettings::CFrameworkSettings(std::string path, const std::string& dataRoot,
                                       std::function<void(const std::string&)> onChanged)
    : m_state(std::make_unique<State>(std::move(path), dataRoot, std::move(onChanged)))
{}

CFrameworkSettings::~CFrameworkSettings() = default;

const std::string& CFrameworkSettings::LoadProblem() const
{
    return m_state->stored.LoadProblem();
}

FrameworkChoices CFrameworkSettings::Get() const
{
    return m_state->Completed(m_state->stored.Get());
}

void CFrameworkSettings::Set(const FrameworkChoices& choices)
{
    std::string names;
    const auto take = [&](FrameworkChoices& value) {
        const FrameworkChoices wanted = m_state->Completed(choices);
        const Differences differences(m_state->Completed(value), wanted);
        names = differences.names;
        value = wanted;
        return differences.any;
    };
    const auto tell = [&] {
        if (m_state->onChanged && !names.empty())
            m_state->onChanged(names);
    };
    (void)m_state->stored.Change(take, tell);
}

} // namespace framework
