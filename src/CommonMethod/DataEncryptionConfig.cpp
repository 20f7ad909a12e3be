#include "CommonMethod/DataEncryptionConfig.h"

#include "Base/FileUtil.h"
#include "Base/GuidUtil.h"
#include "Base/Log.h"
#include "Base/StringUtil.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string_view>

namespace comm_method {
namespace {

namespace fs = std::filesystem;
namespace Encrypt = Base::Encrypt;

constexpr std::size_t kSetupLimit = 64 * 1024;
constexpr std::size_t kKeyDigits = 2 * Encrypt::kKeyBytes;
constexpr char kLabel[] = "Vantor.DESetup.1";
constexpr int kParseOptions = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING;

struct FreeDocument
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, FreeDocument>;

struct FreeText
{
    void operator()(xmlChar* text) const { xmlFree(text); }
};
using XmlText = std::unique_ptr<xmlChar, FreeText>;

bool IsNamed(const xmlNode* node, const char* name)
{
    return node && node->type == XML_ELEMENT_NODE && xmlStrEqual(node->name, BAD_CAST name);
}

Document Parse(const std::string& content)
{
    xmlInitParser();
    return Document(
        xmlReadMemory(content.data(), static_cast<int>(content.size()), nullptr, nullptr, kParseOptions));
}

/// The text of the element Sealed of a setup that this program understands.
std::optional<std::string> SealedText(xmlDoc* document)
{
    xmlNode* root = xmlDocGetRootElement(document);
    if (document->intSubset || !IsNamed(root, "DESetup"))
        return std::nullopt;
    const XmlText version(xmlGetProp(root, BAD_CAST "version"));
    xmlNode* element = xmlFirstElementChild(root);
    if (!version || !xmlStrEqual(version.get(), BAD_CAST "1") || !IsNamed(element, "Sealed"))
        return std::nullopt;
    const XmlText text(xmlNodeGetContent(element));
    return text ? std::optional<std::string>(reinterpret_cast<const char*>(text.get())) : std::nullopt;
}

std::optional<Encrypt::AESParams> ParamsOf(const std::string& hexKey, const std::string& label)
{
    if (!Encrypt::IsKeyText(hexKey))
        return std::nullopt;
    auto bytes = Encrypt::FromHex(hexKey);
    Encrypt::AESParams params;
    std::copy(bytes->begin(), bytes->end(), params.key.begin());
    params.label = label;
    Encrypt::Wipe(*bytes);
    return params;
}

std::string PlainText(const DataEncryption& encryption)
{
    std::string text;
    text.reserve(encryption.id.size() + 2 * kKeyDigits + 16); // growing would leave parts of the keys behind
    text.append("id=").append(encryption.id);
    text.append("\nkey=").append(encryption.databaseKey);
    text.append("\ndata=").append(encryption.dataKey);
    text.append("\n");
    return text;
}

/// Takes the line "name=value" from the front of the text; false when another one stands there.
bool TakeLine(std::string_view& text, std::string_view name, std::string& value)
{
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos || text.substr(0, name.size()) != name)
        return false;
    value = text.substr(name.size(), end - name.size());
    text.remove_prefix(end + 1);
    return true;
}

std::optional<DataEncryption> FromPlainText(std::string_view text)
{
    DataEncryption encryption;
    const bool complete = TakeLine(text, "id=", encryption.id) &&
                          TakeLine(text, "key=", encryption.databaseKey) &&
                          TakeLine(text, "data=", encryption.dataKey);
    if (!complete || !text.empty() || !Encrypt::IsKeyText(encryption.databaseKey) ||
        !Encrypt::IsKeyText(encryption.dataKey))
        return std::nullopt;
    return encryption;
}

void PutAside(const std::string& file)
{
    std::error_code error;
    fs::rename(file, file + ".damaged", error);
    if (error && error != std::errc::no_such_file_or_directory)
        BASE_WARN("Failed to put the file [%s] aside, [%s].", file.c_str(), error.message().c_str());
}

void Delete(const std::string& file)
{
    std::error_code error;
    if (fs::remove(file, error))
        BASE_INFO("Deleted file.[file=%s]", file.c_str());
    else if (error)
        BASE_WARN("Failed to delete the file [%s], [%s].", file.c_str(), error.message().c_str());
}

} // namespace

DataEncryption::~DataEncryption()
{
    Encrypt::Wipe(databaseKey);
    Encrypt::Wipe(dataKey);
}

bool DataEncryption::operator==(const DataEncryption& other) const
{
    return id == other.id && databaseKey == other.databaseKey && dataKey == other.dataKey;
}

Encrypt::AESParams DataEncryption::Params() const
{
    return ParamsOf(dataKey, id).value_or(Encrypt::AESParams());
}

CDataEncryptionConfig::CDataEncryptionConfig(const std::string& file)
    : m_file(file), m_keyFile(fs::path(file).replace_extension(".key").string())
{}

DataEncryption CDataEncryptionConfig::Generate()
{
    DataEncryption encryption;
    encryption.id = Base::GuidUtil::CreateGuid();
    encryption.databaseKey = Encrypt::RandomKeyText();
    encryption.dataKey = Encrypt::RandomKeyText();
    return encryption;
}

// A file that cannot be looked at counts as there: taking it for missing would mean to go on without
// encryption.
bool CDataEncryptionConfig::Exists() const
{
    std::error_code error;
    return fs::status(m_file, error).type() != fs::file_type::not_found;
}

std::optional<DataEncryption> CDataEncryptionConfig::Read() const
{
    const auto sealed = ReadSealed();
    return sealed ? Unseal(*sealed) : std::nullopt;
}

std::optional<std::string> CDataEncryptionConfig::ReadSealed() const
{
    std::string content;
    Document document;
    if (Base::FileUtil::ReadFile(m_file, content, kSetupLimit))
        document = Parse(content);
    if (!document) {
        BASE_ERROR("Failed to read xml file [%s].", m_file.c_str());
        return std::nullopt;
    }
    auto sealed = SealedText(document.get());
    if (!sealed)
        BASE_ERROR("Faild to load config file [%s].", m_file.c_str());
    return sealed;
}

std::optional<DataEncryption> CDataEncryptionConfig::Unseal(const std::string& sealed) const
{
    const auto sealing = ReadSealingKey();
    auto plain = sealing ? Encrypt::Open(*sealing, sealed) : std::nullopt;
    auto encryption = plain ? FromPlainText(*plain) : std::nullopt;
    if (plain)
        Encrypt::Wipe(*plain);
    if (!encryption) {
        BASE_ERROR("Faild to decryption config file [%s].", m_file.c_str());
        return std::nullopt;
    }
    if (encryption->id.empty()) {
        BASE_ERROR("DESetup id empty.");
        return std::nullopt;
    }
    return encryption;
}

std::optional<Encrypt::AESParams> CDataEncryptionConfig::ReadSealingKey() const
{
    std::string text;
    if (!Base::FileUtil::ReadFile(m_keyFile, text, kKeyDigits))
        return std::nullopt;
    auto params = ParamsOf(text, kLabel);
    Encrypt::Wipe(text);
    return params;
}

std::optional<Encrypt::AESParams> CDataEncryptionConfig::MakeSealingKey() const
{
    std::string text = Encrypt::RandomKeyText();
    auto params = ParamsOf(text, kLabel);
    const bool written = Base::FileUtil::WriteFileAtomically(m_keyFile, text);
    Encrypt::Wipe(text);
    return written ? params : std::nullopt;
}

bool CDataEncryptionConfig::Write(const DataEncryption& encryption) const
{
    if (!Base::FileUtil::MakeDirs(fs::path(m_file).parent_path().string())) {
        BASE_ERROR("Failed to create the folder of [%s].", m_file.c_str());
        return false;
    }
    auto sealing = ReadSealingKey();
    if (!sealing)
        sealing = MakeSealingKey();
    if (!sealing) {
        BASE_ERROR("Failed to write the sealing key of [%s].", m_file.c_str());
        return false;
    }
    std::string plain = PlainText(encryption);
    const std::string sealed = Encrypt::Seal(*sealing, plain); // base64 needs no escaping
    Encrypt::Wipe(plain);
    const std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DESetup version=\"1\"><Sealed>" +
                            sealed + "</Sealed></DESetup>\n";
    if (Base::FileUtil::WriteFileAtomically(m_file, xml))
        return true;
    BASE_ERROR("Failed to write the file [%s].", m_file.c_str());
    return false;
}

// The setup file goes last: while it is there, the next start takes the rest up again.
void CDataEncryptionConfig::Remove() const
{
    Delete(m_keyFile);
    Delete(m_file);
}

void CDataEncryptionConfig::SetAside() const
{
    PutAside(m_keyFile);
    PutAside(m_file);
}

} // namespace comm_method
