#include "CommonMethod/DataEncryptionConfig.h"

#include "Base/FileUtil.h"
#include "Base/GuidUtil.h"
#include "Base/Log.h"
#include "CommonMethod/SealingKey.h"
#include "Keyring/Keyring.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <filesystem>
#include <memory>
#include <string_view>

namespace comm_method {
namespace {

namespace fs = std::filesystem;
namespace Encrypt = Base::Encrypt;

constexpr std::size_t kSetupLimit = 64 * 1024;
constexpr std::size_t kKeyDigits = 2 * Encrypt::kKeyBytes;
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

std::string TextOf(const XmlText& text)
{
    return text ? reinterpret_cast<const char*>(text.get()) : std::string();
}

Document Parse(const std::string& content)
{
    xmlInitParser();
    return Document(
        xmlReadMemory(content.data(), static_cast<int>(content.size()), nullptr, nullptr, kParseOptions));
}

/// The sealed text of a setup that this program understands, and where its key lies.
std::optional<SealedSetup> SetupOf(xmlDoc* document)
{
    xmlNode* root = xmlDocGetRootElement(document);
    if (document->intSubset || !IsNamed(root, "DESetup"))
        return std::nullopt;
    const XmlText version(xmlGetProp(root, BAD_CAST "version"));
    const XmlText entry(xmlGetProp(root, BAD_CAST "keyring"));
    xmlNode* element = xmlFirstElementChild(root);
    if (!version || !xmlStrEqual(version.get(), BAD_CAST "1") || !IsNamed(element, "Sealed"))
        return std::nullopt;
    SealedSetup setup{TextOf(XmlText(xmlNodeGetContent(element))), TextOf(entry)};
    if (entry && !keyring::IsName(setup.keyringEntry))
        return std::nullopt;
    return setup;
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
    return Encrypt::ParamsOf(dataKey, id).value_or(Encrypt::AESParams());
}

CDataEncryptionConfig::CDataEncryptionConfig(const std::string& file) : m_file(file) {}

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

std::optional<SealedSetup> CDataEncryptionConfig::ReadSealed() const
{
    std::string content;
    Document document;
    if (Base::FileUtil::ReadFile(m_file, content, kSetupLimit))
        document = Parse(content);
    if (!document) {
        BASE_ERROR("Failed to read xml file [%s].", m_file.c_str());
        return std::nullopt;
    }
    auto sealed = SetupOf(document.get());
    if (!sealed)
        BASE_ERROR("Faild to load config file [%s].", m_file.c_str());
    return sealed;
}

std::optional<DataEncryption> CDataEncryptionConfig::Unseal(const SealedSetup& sealed) const
{
    const auto key = CSealingKeys(m_file).Read(sealed.keyringEntry);
    auto plain = key ? Encrypt::Open(key->params, sealed.text) : std::nullopt;
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

/// The sealing key of the setup that is there, or one that an interrupted first start has left; else a new
/// one.
std::optional<SealingKey> CDataEncryptionConfig::KeyToWriteWith() const
{
    const CSealingKeys keys(m_file);
    const auto present = Exists() ? ReadSealed() : std::nullopt;
    std::optional<SealingKey> key;
    if (present || keys.HasFile())
        key = keys.Read(present ? present->keyringEntry : std::string());
    return key ? key : keys.Make();
}

bool CDataEncryptionConfig::Write(const DataEncryption& encryption) const
{
    if (!Base::FileUtil::MakeDirs(fs::path(m_file).parent_path().string())) {
        BASE_ERROR("Failed to create the folder of [%s].", m_file.c_str());
        return false;
    }
    const auto key = KeyToWriteWith();
    if (!key) {
        BASE_ERROR("Failed to write the sealing key of [%s].", m_file.c_str());
        return false;
    }
    std::string plain = PlainText(encryption);
    const std::string sealed = Encrypt::Seal(key->params, plain); // base64 needs no escaping, nor does a name
    Encrypt::Wipe(plain);
    const std::string place = key->entry.empty() ? "" : " keyring=\"" + key->entry + '"';
    const std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DESetup version=\"1\"" + place +
                            "><Sealed>" + sealed + "</Sealed></DESetup>\n";
    if (Base::FileUtil::WriteFileAtomically(m_file, xml))
        return true;
    BASE_ERROR("Failed to write the file [%s].", m_file.c_str());
    return false;
}

// The setup file goes last: while it is there, the next start takes the rest up again.
void CDataEncryptionConfig::Remove() const
{
    const auto present = ReadSealed();
    CSealingKeys(m_file).Remove(present ? present->keyringEntry : std::string());
    DeleteFile(m_file);
}

void CDataEncryptionConfig::SetAside() const
{
    PutAside(CSealingKeys(m_file).File());
    PutAside(m_file);
}

} // namespace comm_method
