// The setup of the data encryption: the document, the text sealed in it, and the file of the sealing key.
//
// Input: 'x' and the document; 's' and the text that is sealed and put into a good document; 'k' and the
// content of the key's file.

#include "CommonMethod/DataEncryptionConfig.h"
#include "Fuzz.h"

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace Encrypt = Base::Encrypt;
using comm_method::CDataEncryptionConfig;
using comm_method::DataEncryption;

constexpr char kLabel[] = "Vantor.DESetup.1";
const std::string kKeyText(2 * Encrypt::kKeyBytes, '0');

/// A folder that goes with the program.
class CFolder
{
public:
    CFolder()
    {
        std::string name = std::filesystem::temp_directory_path() / "vantor-fuzz-setup.XXXXXX";
        FUZZ_CHECK(mkdtemp(name.data()));
        m_path = name + "/";
    }
    ~CFolder() { std::filesystem::remove_all(m_path); }

    std::string Write(const char* name, const std::string& content) const
    {
        std::ofstream(m_path + name, std::ios::binary | std::ios::trunc) << content;
        return m_path + name;
    }

private:
    std::string m_path;
};

std::string Document(const std::string& plain)
{
    const auto params = Encrypt::ParamsOf(kKeyText, kLabel).value();
    return "<DESetup version=\"1\"><Sealed>" + Encrypt::Seal(params, plain) + "</Sealed></DESetup>";
}

std::string PlainText(const DataEncryption& setup)
{
    return "id=" + setup.id + "\nkey=" + setup.databaseKey + "\ndata=" + setup.dataKey + "\n";
}

std::optional<DataEncryption> Read(const std::string& document, const std::string& key)
{
    static const CFolder folder;
    folder.Write("DESetup.key", key);
    const CDataEncryptionConfig config(folder.Write("DESetup.xml", document));
    const fuzz::CLogWatch log;
    auto setup = config.Read();
    FUZZ_CHECK(config.Exists());
    // The keyring, which is not there, has a line of its own.
    FUZZ_CHECK(setup ? log.Count() == 0 : log.Count() == 1 || log.Count() == 2);
    return setup;
}

void CheckSetup(const DataEncryption& setup)
{
    FUZZ_CHECK(!setup.id.empty() && setup.id.find('\n') == std::string::npos);
    FUZZ_CHECK(Encrypt::IsKeyText(setup.databaseKey) && Encrypt::IsKeyText(setup.dataKey));
    FUZZ_CHECK(setup.Params().label == setup.id);
}

void CheckSealed(const std::string& plain)
{
    const auto setup = Read(Document(plain), kKeyText);
    if (!setup)
        return;
    CheckSetup(*setup);
    FUZZ_CHECK(PlainText(*setup) == plain);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    setenv("VANTOR_KEYRING", "none", 1);
    umask(077); // files that others may read have a line of their own
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::CInput input(data, size);
    const char mode = static_cast<char>(input.Byte());
    if (mode == 's') {
        CheckSealed(input.Rest());
    } else if (mode == 'k') {
        const std::string key = input.Rest();
        FUZZ_CHECK(!Read(Document("id=a\nkey=" + kKeyText + "\ndata=" + kKeyText + "\n"), key) ||
                   key == kKeyText);
    } else if (const auto setup = Read(input.Rest(), kKeyText)) {
        CheckSetup(*setup);
    }
    return 0;
}
