#include "simulator/server/Certificate.h"

#include "Base/FileUtil.h"
#include "simulator/protocol/Digest.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509.h>

namespace simulator {

namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;
using Memory = std::unique_ptr<BIO, decltype(&BIO_free_all)>;

constexpr long kYears = 20L * 365 * 24 * 3600;

std::string Content(const Memory& memory)
{
    char* data = nullptr;
    const long length = BIO_get_mem_data(memory.get(), &data);
    return std::string(data, static_cast<std::size_t>(length));
}

bool Fill(X509* certificate, EVP_PKEY* key)
{
    std::uint64_t serial = 0;
    RAND_bytes(reinterpret_cast<unsigned char*>(&serial), sizeof serial);
    X509_NAME* name = X509_get_subject_name(certificate);
    return X509_set_version(certificate, 2) &&
           ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), serial) &&
           X509_gmtime_adj(X509_getm_notBefore(certificate), -24 * 3600) &&
           X509_gmtime_adj(X509_getm_notAfter(certificate), kYears) &&
           X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC,
                                      reinterpret_cast<const unsigned char*>("vantor-device-sim"), -1, -1,
                                      0) &&
           X509_set_issuer_name(certificate, name) && X509_set_pubkey(certificate, key) &&
           X509_sign(certificate, key, EVP_sha256());
}

Certificate ReadCertificate(const std::string& pem)
{
    const Memory memory(BIO_new_mem_buf(pem.data(), static_cast<int>(pem.size())), &BIO_free_all);
    return Certificate(PEM_read_bio_X509(memory.get(), nullptr, nullptr, nullptr), &X509_free);
}

bool Fits(const TlsIdentity& identity)
{
    const Memory memory(BIO_new_mem_buf(identity.key.data(), static_cast<int>(identity.key.size())),
                        &BIO_free_all);
    const Key key(PEM_read_bio_PrivateKey(memory.get(), nullptr, nullptr, nullptr), &EVP_PKEY_free);
    const Certificate certificate = ReadCertificate(identity.certificate);
    return key && certificate && X509_check_private_key(certificate.get(), key.get()) == 1;
}

} // namespace

std::optional<TlsIdentity> MakeIdentity()
{
    const Key key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
    const Certificate certificate(X509_new(), &X509_free);
    const Memory certificateText(BIO_new(BIO_s_mem()), &BIO_free_all);
    const Memory keyText(BIO_new(BIO_s_mem()), &BIO_free_all);
    if (!key || !certificate || !Fill(certificate.get(), key.get()) ||
        !PEM_write_bio_X509(certificateText.get(), certificate.get()) ||
        !PEM_write_bio_PrivateKey(keyText.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr))
        return std::nullopt;
    return TlsIdentity{Content(certificateText), Content(keyText)};
}

std::optional<TlsIdentity> ProvideIdentity(const std::string& folder, bool wantsNew, std::string& error)
{
    TlsIdentity kept;
    const bool isKept = !folder.empty() && !wantsNew &&
                        Base::FileUtil::ReadFile(folder + "certificate.pem", kept.certificate) &&
                        Base::FileUtil::ReadFile(folder + "key.pem", kept.key);
    if (isKept && Fits(kept))
        return kept;
    if (isKept) {
        error = "certificate.pem and key.pem of " + folder + " do not fit; --new-certificate makes others";
        return std::nullopt;
    }
    auto made = MakeIdentity();
    if (!made)
        error = "no certificate could be made";
    else if (!folder.empty() &&
             (!Base::FileUtil::MakeDirs(folder) ||
              !Base::FileUtil::WriteFileAtomically(folder + "key.pem", made->key) ||
              !Base::FileUtil::WriteFileAtomically(folder + "certificate.pem", made->certificate)))
        error = "state folder " + folder + " cannot be used";
    else
        return made;
    return std::nullopt;
}

std::string FingerprintOf(const TlsIdentity& identity)
{
    const Certificate certificate = ReadCertificate(identity.certificate);
    unsigned char* octets = nullptr;
    const int length = i2d_X509(certificate.get(), &octets);
    const std::string text(reinterpret_cast<char*>(octets), static_cast<std::size_t>(std::max(0, length)));
    OPENSSL_free(octets);
    return Sha256Hex(text);
}

} // namespace simulator
