#include "system/SecretSearch.h"

#include "Base/Encrypt.h"
#include "Base/FileUtil.h"

#include <openssl/evp.h>

#include <cctype>
#include <filesystem>
#include <sstream>

namespace {

std::string Utf16(const std::string& ascii)
{
    std::string text;
    for (const char c : ascii)
        text.append({c, '\0'});
    return text;
}

/// Letters and digits alone, in lower case.
std::string Packed(const std::string& content)
{
    std::string packed;
    packed.reserve(content.size());
    for (const unsigned char c : content)
        if (std::isalnum(c))
            packed += static_cast<char>(std::tolower(c));
    return packed;
}

/// The memory of lines "  0xADDRESS: 0xWORD 0xWORD ...", words of eight bytes with the lowest first.
std::string MemoryShown(const std::string& content)
{
    constexpr std::size_t kWordLength = 18;
    std::string memory;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        if (line.rfind("  0x", 0) != 0)
            continue;
        for (std::size_t at = line.find(": 0x"); at != std::string::npos; at = line.find(" 0x", at)) {
            at = line.find("0x", at);
            auto bytes = Base::Encrypt::FromHex(line.substr(at, kWordLength).substr(2)).value_or("");
            memory.append(bytes.rbegin(), bytes.rend());
            at += 2;
        }
    }
    return memory;
}

struct Form
{
    const char* name;
    std::string needle;
    bool inPacked;
};

/// text: of ASCII characters, or the bytes of a key.
std::vector<Form> FormsOf(const std::string& text)
{
    using Base::Encrypt::ToHex;
    return {{"as it is", text, false},
            {"base64", Base64(text), false},
            {"UTF-16", Utf16(text), false},
            {"digits", ToHex(text), true},
            {"digits of UTF-16", ToHex(Utf16(text)), true}};
}

std::vector<Form> FormsOf(const Secret& secret)
{
    if (!secret.isKey)
        return FormsOf(secret.text);
    std::vector<Form> forms;
    const std::string bytes = Base::Encrypt::FromHex(secret.text).value();
    forms.push_back({"base64 of all", Base64(bytes), false});
    for (const std::string& half : {bytes.substr(0, bytes.size() / 2), bytes.substr(bytes.size() / 2)}) {
        for (const std::string& text : {half, Base::Encrypt::ToHex(half)})
            for (const Form& form : FormsOf(text))
                forms.push_back(form);
    }
    return forms;
}

} // namespace

std::string Base64(const std::string& bytes)
{
    std::string text(4 * ((bytes.size() + 2) / 3) + 1, '\0');
    const int size =
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                        reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size()));
    text.resize(static_cast<std::size_t>(size));
    return text;
}

std::vector<Finding> FindSecrets(const std::vector<Secret>& secrets, const std::string& file,
                                 const std::string& content)
{
    const std::string packed = Packed(content);
    const std::string memory = MemoryShown(content);
    std::vector<Finding> findings;
    for (const Secret& secret : secrets) {
        for (const Form& form : FormsOf(secret)) {
            if ((form.inPacked ? packed : content).find(form.needle) != std::string::npos)
                findings.push_back({secret.what, form.name, file});
            else if (memory.find(form.needle) != std::string::npos)
                findings.push_back({secret.what, std::string(form.name) + " in memory", file});
        }
    }
    return findings;
}

std::vector<Finding> FindSecretsBelow(const std::vector<Secret>& secrets, const std::string& folder,
                                      const std::string& except)
{
    std::vector<Finding> findings;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        std::string content;
        if (!entry.is_regular_file() || entry.path() == except ||
            !Base::FileUtil::ReadFile(entry.path(), content, 256 * 1024 * 1024))
            continue;
        for (const Finding& finding : FindSecrets(secrets, entry.path(), content))
            findings.push_back(finding);
    }
    return findings;
}
