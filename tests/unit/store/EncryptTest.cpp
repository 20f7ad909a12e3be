#include "Base/Encrypt.h"

#include <gtest/gtest.h>

namespace Encrypt = Base::Encrypt;

namespace {

Encrypt::AESParams ParamsWith(std::uint8_t keyByte, const std::string& label)
{
    const std::string bytes(Encrypt::kKeyBytes, static_cast<char>(keyByte));
    return Encrypt::ParamsOf(Encrypt::ToHex(bytes), label).value();
}

} // namespace

TEST(Encrypt, OpensWhatItSealedNeverInTheSameWay)
{
    const auto params = ParamsWith(7, "label");
    for (const std::string& plain :
         {std::string(), std::string("x"), std::string("a\0b", 3), std::string(100000, 'z')})
        EXPECT_EQ(Encrypt::Open(params, Encrypt::Seal(params, plain)), plain);
    EXPECT_NE(Encrypt::Seal(params, "same"), Encrypt::Seal(params, "same"));
}

TEST(Encrypt, DoesNotOpenUnderAnotherKeyOrLabel)
{
    const std::string sealed = Encrypt::Seal(ParamsWith(7, "label"), "secret");
    EXPECT_FALSE(Encrypt::Open(ParamsWith(8, "label"), sealed));
    EXPECT_FALSE(Encrypt::Open(ParamsWith(7, "Label"), sealed));
}

TEST(Encrypt, DoesNotOpenATextThatWasChangedAnywhere)
{
    const auto params = ParamsWith(7, "label");
    const std::string sealed = Encrypt::Seal(params, "a secret of some length");
    for (std::size_t at = 0; at < sealed.size(); ++at) {
        std::string changed = sealed;
        changed[at] = changed[at] == 'A' ? 'B' : 'A';
        EXPECT_FALSE(Encrypt::Open(params, changed)) << "at " << at;
    }
}

TEST(Encrypt, DoesNotOpenWhatIsNoSealedText)
{
    const auto params = ParamsWith(7, "label");
    const std::string sealed = Encrypt::Seal(params, "secret");
    for (const std::string& text :
         {std::string(), std::string("===="), std::string("AAA"), std::string("A==="),
          std::string("\xFF\xFF\xFF\xFF"), sealed.substr(0, 36), sealed + "AAAA"})
        EXPECT_FALSE(Encrypt::Open(params, text));
}

TEST(Encrypt, OpensAKnownText)
{
    // Key of zero bytes, nonce of zero bytes, empty label, plain text of 16 zero bytes: test case 14 of the
    // GCM paper (McGrew and Viega, 2005).
    const auto bytes = Encrypt::FromHex("00000000000000000000000000000000");
    EXPECT_EQ(
        Encrypt::Open(ParamsWith(0, ""), "AAAAAAAAAAAAAAAAzqdAPU1ga24HTsXTuvOdGNDRyKeZmWvwJluYtdSKuRk="),
        bytes);
}

TEST(Encrypt, DoesNothingWithoutAKey)
{
    EXPECT_THROW(Encrypt::Seal({nullptr, "label"}, "secret"), std::runtime_error);
    EXPECT_THROW(Encrypt::Open({nullptr, "label"}, Encrypt::Seal(ParamsWith(7, "label"), "secret")),
                 std::runtime_error);
}

TEST(Encrypt, KeepsTheKeyOutOfTheStacksOfItsUsers)
{
    const Encrypt::AESParams params = ParamsWith(7, "label");
    const std::string memory(reinterpret_cast<const char*>(&params), sizeof params);
    EXPECT_EQ(memory.find(std::string(4, '\7')), std::string::npos);
}

TEST(Hex, ReadsBothCasesAndRefusesEverythingElse)
{
    EXPECT_EQ(Encrypt::ToHex(std::string("\x00\xFF\x1a", 3)), "00ff1a");
    EXPECT_EQ(Encrypt::FromHex("00fF1A"), std::string("\x00\xFF\x1a", 3));
    for (const char* text : {"0", "0g", " 00", "0x00"})
        EXPECT_FALSE(Encrypt::FromHex(text)) << text;
}

TEST(KeyText, IsAKeyInHexadecimalDigitsAndNothingElse)
{
    const std::string key = Encrypt::RandomKeyText();
    EXPECT_TRUE(Encrypt::IsKeyText(key));
    EXPECT_NE(key, Encrypt::RandomKeyText());
    EXPECT_TRUE(Encrypt::IsKeyText(std::string(32, 'a') + std::string(32, 'F')));
    for (const std::string& text : {std::string(), key.substr(1), key + "0", key.substr(1) + "g",
                                    key.substr(1) + " ", key.substr(1) + std::string(1, '\0')})
        EXPECT_FALSE(Encrypt::IsKeyText(text)) << text;
}
