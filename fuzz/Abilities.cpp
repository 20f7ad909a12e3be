// The documents of devices' abilities, read as each of the kinds.
//
// Input: the document.

#include "CapabilitySet/Documents/Abilities.h"
#include "CapabilitySet/Documents/Parse.h"
#include "Fuzz.h"
#include "simulator/abilities/AbilityWriter.h"

namespace {

using namespace CapabilitySet;

void CheckLimits(const XmlTree::Element& element, std::size_t depth, std::size_t& elements)
{
    FUZZ_CHECK(depth <= kMostDepth && ++elements <= kMostElements && !element.name.empty());
    for (const XmlTree::Element& child : element.children)
        CheckLimits(child, depth + 1, elements);
}

void CheckValue(bool, std::uint32_t) {}
void CheckValue(std::uint32_t value, std::uint32_t greatest)
{
    FUZZ_CHECK(value <= greatest);
}
void CheckValue(const std::optional<Range>& range, std::uint32_t greatest)
{
    FUZZ_CHECK(!range || (range->least <= range->greatest && range->greatest <= greatest));
}
void CheckValue(const Options& options, std::uint32_t greatest)
{
    FUZZ_CHECK(options.size() <= kMostOptions);
    for (const Option& option : options)
        FUZZ_CHECK(option.index <= greatest && !option.text.empty() &&
                   option.text.size() <= kMostOptionBytes && fuzz::IsOneLine(option.text));
}

template<typename T>
void CheckFields(const T& structure);

template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
void CheckValue(const std::optional<T>& structure, std::uint32_t)
{
    if (structure)
        CheckFields(*structure);
}
template<typename T, std::enable_if_t<HasFields<T>::value, int> = 0>
void CheckValue(const std::vector<T>& list, std::uint32_t greatest)
{
    FUZZ_CHECK(list.size() <= greatest);
    for (const T& structure : list)
        CheckFields(structure);
}

template<typename T>
void CheckFields(const T& structure)
{
    ForEachField<T>([&](const auto& field) { CheckValue(structure.*field.member, field.greatest); });
}

/// Whether the document carries the ability, which then comes back when it is written and read again.
template<typename Ability>
bool Check(const std::string& document)
{
    Ability ability;
    std::string problem;
    if (!ParseAbility(document, ability, problem)) {
        FUZZ_CHECK(!problem.empty() && ability == Ability());
        return false;
    }
    CheckFields(ability);
    Ability again;
    FUZZ_CHECK(ParseAbility(simulator::abilities::WriteAbility(ability), again, problem));
    FUZZ_CHECK(again == ability);
    return true;
}

/// How many kinds of ability the document carries.
template<typename... Ability>
int CountKinds(const std::string& document, const std::variant<Ability...>&)
{
    return (0 + ... + Check<Ability>(document));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string document(reinterpret_cast<const char*>(data), size);
    XmlTree::Element root;
    std::string problem;
    const bool read = ReadDocument(document, root, problem);
    if (read) {
        std::size_t elements = 0;
        CheckLimits(root, 1, elements);
    }
    FUZZ_CHECK(CountKinds(document, AnyAbility()) <= (read ? 1 : 0));
    return 0;
}
