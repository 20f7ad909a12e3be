// Files that the programs read and that somebody else may have written.
//
// Input: a character that chooses the kind of file (below), and its content.

#include "Fuzz.h"
#include "VantorSkin/SkinPalette.h"
#include "framework/core/FrameworkSettings.h"
#include "framework/core/Journal.h"
#include "framework/core/ResourceFile.h"
#include "lpc/script/Script.h"

#include <QByteArray>

namespace {

/// What framework::TStored keeps.
template<typename T>
void CheckKept(const std::string& content)
{
    using protocol::operator==;
    using protocol::json::Kind;
    std::string problem;
    protocol::json::ReadError error;
    T kept{};
    const protocol::json::Tree tree = protocol::json::ParseText(content, problem);
    FUZZ_CHECK(!tree == !problem.empty());
    if (!tree || !Kind<T>::Read(tree.get(), kept, error)) {
        FUZZ_CHECK(!tree || !error.reason.empty());
        return;
    }
    const std::string written = protocol::json::PrintText(Kind<T>::Write(kept).get());
    const protocol::json::Tree again = protocol::json::ParseText(written, problem);
    T read{};
    FUZZ_CHECK(again && Kind<T>::Read(again.get(), read, error) && read == kept);
}

void CheckPalette(const std::string& content)
{
    using VantorGUIToolkit::SkinPalette;
    QString why;
    const auto palette = SkinPalette::FromJson(QByteArray::fromStdString(content), why);
    FUZZ_CHECK(palette.has_value() == why.isEmpty());
    if (!palette)
        return;
    for (const QString& role : SkinPalette::Roles())
        FUZZ_CHECK(palette->Color(role).isValid());
    FUZZ_CHECK(palette->StyleParameters().size() == SkinPalette::Roles().size());
}

void CheckScript(const std::string& content)
{
    std::string error;
    const auto script = lpctool::ParseScript("script", content, error);
    FUZZ_CHECK(script.has_value() == error.empty());
    int last = 0;
    for (const lpctool::ScriptLine& line : script ? script->lines : std::vector<lpctool::ScriptLine>()) {
        FUZZ_CHECK(line.number > last);
        last = line.number;
        FUZZ_CHECK(!lpctool::Describe(line.step).empty() ||
                   std::holds_alternative<lpctool::Heading>(line.step));
    }
}

constexpr struct
{
    char kind;
    void (*check)(const std::string& content);
} kFiles[] = {
    {'j', CheckKept<framework::JournalEntry>},
    {'l', CheckScript},
    {'p', CheckPalette},
    {'r', CheckKept<framework::ResourceFile>},
    {'s', CheckKept<framework::FrameworkChoices>},
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::CInput input(data, size);
    const char kind = static_cast<char>(input.Byte());
    const std::string content = input.Rest();
    for (const auto& file : kFiles)
        if (file.kind == kind)
            file.check(content);
    return 0;
}
