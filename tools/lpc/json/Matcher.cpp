#include "lpc/json/Matcher.h"

#include "Base/CredentialName.h"
#include "Base/StringUtil.h"
#include "lpc/json/Masking.h"

#include <cctype>
#include <cstring>

namespace lpctool {

namespace {

/// Longer values are cut when a mismatch shows them.
constexpr std::size_t kShownBytes = 400;

/// The text that a pattern or an outgoing text without a variable stands for.
const char* Literal(const char* text)
{
    return std::strncmp(text, "$$", 2) == 0 ? text + 1 : text;
}

class CMatch
{
public:
    explicit CMatch(const Variables& known) : m_variables(known) {}

    /// True when the value matches; otherwise the mismatch is kept.
    bool Compare(const cJSON& pattern, const cJSON& value, const std::string& path)
    {
        if (cJSON_IsString(&pattern))
            return CompareText(pattern, value, path);
        if (cJSON_IsObject(&pattern) && cJSON_IsObject(&value))
            return CompareMembers(pattern, value, path);
        if (cJSON_IsArray(&pattern) && cJSON_IsArray(&value))
            return CompareElements(pattern, value, path);
        if (cJSON_IsNumber(&pattern) && cJSON_IsNumber(&value))
            return pattern.valuedouble == value.valuedouble || Fail(pattern, value, path);
        return cJSON_Compare(&pattern, &value, true) || Fail(pattern, value, path);
    }

    Variables m_variables;
    Mismatch m_mismatch;

private:
    bool CompareText(const cJSON& pattern, const cJSON& value, const std::string& path)
    {
        const char* text = pattern.valuestring;
        if (std::strcmp(text, "*") == 0)
            return true;
        if (const auto name = VariableName(text))
            return CompareVariable(*name, value, path);
        const bool same = cJSON_IsString(&value) && std::strcmp(Literal(text), value.valuestring) == 0;
        return same || Fail(pattern, value, path);
    }

    bool CompareVariable(const std::string& name, const cJSON& value, const std::string& path)
    {
        JsonValue& stored = m_variables[name];
        if (!stored)
            stored = OwnJson(cJSON_Duplicate(&value, true));
        return cJSON_Compare(stored.get(), &value, true) || Fail(*stored, value, path, " ($" + name + ")");
    }

    bool CompareMembers(const cJSON& pattern, const cJSON& value, const std::string& path)
    {
        for (const cJSON* wanted = pattern.child; wanted; wanted = wanted->next) {
            const std::string memberPath = path + "." + wanted->string;
            const cJSON* got = Member(&value, wanted->string);
            if (!got)
                return Fail(memberPath, Shown(*wanted, memberPath), "nothing: there is no such member");
            if (!Compare(*wanted, *got, memberPath))
                return false;
        }
        return true;
    }

    bool CompareElements(const cJSON& pattern, const cJSON& value, const std::string& path)
    {
        const cJSON* got = value.child;
        int index = 0;
        for (const cJSON* wanted = pattern.child; wanted && got; wanted = wanted->next, got = got->next)
            if (!Compare(*wanted, *got, path + "[" + std::to_string(index++) + "]"))
                return false;
        const int wantedSize = cJSON_GetArraySize(&pattern);
        const int gotSize = cJSON_GetArraySize(&value);
        return wantedSize == gotSize || Fail(path, std::to_string(wantedSize) + " elements",
                                             std::to_string(gotSize) + " elements: " + Shown(value, path));
    }

    static std::string Shown(const cJSON& value, const std::string& path)
    {
        if (Base::IsCredentialName(path.substr(path.find_last_of('.') + 1)))
            return kMask;
        const std::string text = MaskedText(value);
        return text.size() <= kShownBytes ? text : Base::StringUtil::CutUtf8(text, kShownBytes) + "...";
    }

    bool Fail(const cJSON& wanted, const cJSON& got, const std::string& path, const std::string& note = {})
    {
        return Fail(path, Shown(wanted, path) + note, Shown(got, path));
    }

    bool Fail(const std::string& path, const std::string& wanted, const std::string& got)
    {
        m_mismatch = {path, wanted, got};
        return false;
    }
};

class CSubstitution
{
public:
    CSubstitution(const Variables& variables, std::string& unknown)
        : m_variables(variables), m_unknown(unknown)
    {}

    /// False at the first variable that is not known.
    bool Replace(cJSON* item)
    {
        for (cJSON* child = item->child; child;) {
            cJSON* next = child->next;
            if (cJSON_IsString(child) ? !ReplaceText(item, child) : !Replace(child))
                return false;
            child = next;
        }
        return true;
    }

private:
    bool ReplaceText(cJSON* parent, cJSON* child)
    {
        const auto name = VariableName(child->valuestring);
        if (!name) {
            if (Literal(child->valuestring) != child->valuestring)
                ReplaceItem(parent, child, cJSON_CreateString(Literal(child->valuestring)));
            return true;
        }
        const auto found = m_variables.find(*name);
        if (found == m_variables.end()) {
            m_unknown = *name;
            return false;
        }
        ReplaceItem(parent, child, cJSON_Duplicate(found->second.get(), true));
        return true;
    }

    const Variables& m_variables;
    std::string& m_unknown;
};

} // namespace

std::optional<std::string> VariableName(const char* text)
{
    if (text[0] != '$' || text[1] == '\0' || std::isdigit(static_cast<unsigned char>(text[1])))
        return std::nullopt;
    for (const char* letter = text + 1; *letter; ++letter)
        if (!std::isalnum(static_cast<unsigned char>(*letter)) && *letter != '_')
            return std::nullopt;
    return std::string(text + 1);
}

std::optional<Mismatch> Match(const cJSON& pattern, const cJSON& value, Variables& variables)
{
    CMatch match(variables);
    if (!match.Compare(pattern, value, "$"))
        return match.m_mismatch;
    variables = std::move(match.m_variables);
    return std::nullopt;
}

JsonValue Substitute(const JsonValue& value, const Variables& variables, std::string& unknown)
{
    if (!value)
        return nullptr;
    // The value goes into an array of one, so that a text at the root is replaced like any other.
    cJSON* box = cJSON_CreateArray();
    const JsonValue owner = OwnJson(box);
    cJSON_AddItemToArray(box, cJSON_Duplicate(value.get(), true));
    if (!CSubstitution(variables, unknown).Replace(box))
        return nullptr;
    return OwnJson(cJSON_DetachItemFromArray(box, 0));
}

} // namespace lpctool
