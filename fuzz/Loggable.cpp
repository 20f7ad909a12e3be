// What of a received text may stand in a log line: protocol::LoggableText and, for vantor-lpc, MaskedBody.
//
// Input: '-' and any bytes. Or a digit that chooses how a credential is put into a text, and then lines: the
// name of its key (made into a credential's name when it is none), what stands before the mark in the value,
// what stands behind it, the name and the value of a member beside it.

#include "Base/CredentialName.h"
#include "Fuzz.h"
#include "Protocol/JSONStruct/LoggableText.h"
#include "Protocol/JSONStruct/ParseJSONUtil.h"
#include "lpc/json/Masking.h"

#include <boost/locale/utf.hpp>

#include <cctype>

namespace {

using protocol::json::Attach;
using protocol::json::NewArray;
using protocol::json::NewObject;
using protocol::json::NewText;
using protocol::json::PrintText;
using protocol::json::Tree;

/// Part of every credential; nothing that is shown may hold it.
constexpr const char* kMark = "QZXJ";

struct Credential
{
    std::string key;
    std::string value;
    std::string otherKey;
    std::string otherValue;
};

Tree ListOf(const std::string& value)
{
    Tree list = NewArray();
    protocol::json::Append(list.get(), NewText("first"));
    protocol::json::Append(list.get(), NewText(value));
    return list;
}

Tree ObjectOf(const std::string& value)
{
    Tree object = NewObject();
    Attach(object.get(), "a}", NewText("{"));
    Attach(object.get(), "inner", NewText(value));
    return object;
}

std::string Members(const Credential& credential, Tree value)
{
    Tree object = NewObject();
    Attach(object.get(), credential.otherKey.c_str(), NewText(credential.otherValue));
    Attach(object.get(), credential.key.c_str(), std::move(value));
    Attach(object.get(), "after", NewText(credential.otherValue));
    return PrintText(object.get());
}

std::string InText(const std::string& json)
{
    Tree object = NewObject();
    Attach(object.get(), "data", NewText(json));
    return PrintText(object.get());
}

/// Only characters that may stand where the text is not quoted.
std::string Word(std::string text, std::string_view allowed)
{
    const auto isOther = [&](unsigned char c) {
        return !std::isalnum(c) && allowed.find(static_cast<char>(c)) == std::string_view::npos;
    };
    text.erase(std::remove_if(text.begin(), text.end(), isOther), text.end());
    return text;
}

std::string Query(const Credential& credential)
{
    return Word(credential.otherKey, "-_.") + "=" + Word(credential.otherValue, "-_.~!*()%") + "&" +
           Word(credential.key, "-_.") + "=" + Word(credential.value, "-_.~!*()%") + "&last=1";
}

/// What RFC 3986 allows as user information.
std::string Url(const Credential& credential)
{
    return "rtsp://admin:" + Word(credential.value, "-._~%!$&'()*+,;=:") + "@camera/1";
}

std::string TextWith(const Credential& credential, std::size_t form)
{
    switch (form) {
    case 1:
        return Members(credential, ListOf(credential.value));
    case 2:
        return Members(credential, ObjectOf(credential.value));
    case 3:
        return InText(Members(credential, NewText(credential.value)));
    case 4:
        return InText(InText(Members(credential, ListOf(credential.value))));
    case 5:
        return Query(credential);
    case 6:
        return Url(credential);
    case 7:
        return Members({credential.otherKey, {}, "a", "b"}, NewText(Url(credential)));
    default:
        return Members(credential, NewText(credential.value));
    }
}

bool IsUtf8(const std::string& text)
{
    using Utf8 = boost::locale::utf::utf_traits<char>;
    for (auto at = text.begin(); at != text.end();) {
        const auto point = Utf8::decode(at, text.end());
        if (point == boost::locale::utf::illegal || point == boost::locale::utf::incomplete)
            return false;
    }
    return true;
}

std::string Shown(const std::string& text)
{
    std::string shown = protocol::LoggableText(text);
    FUZZ_CHECK(shown.size() <= protocol::kLoggedTextLimit && fuzz::IsOneLine(shown) && IsUtf8(shown));
    return shown;
}

std::string ShownByTool(const std::string& text)
{
    const auto masked = lpctool::MaskedBody(text);
    return masked ? lpctool::ToText(*masked) : std::string();
}

/// A line without what a C string cannot hold.
std::string Line(fuzz::CInput& input)
{
    std::string line = input.Line();
    line.erase(std::remove(line.begin(), line.end(), '\0'), line.end());
    return line;
}

Credential ReadCredential(fuzz::CInput& input)
{
    Credential credential;
    credential.key = Line(input);
    if (!Base::IsCredentialName(credential.key))
        credential.key += "Password";
    credential.value = Line(input) + kMark;
    credential.value += Line(input);
    credential.otherKey = Line(input);
    credential.otherValue = Line(input);
    return credential;
}

bool HoldsMark(const std::string& text)
{
    return text.find(kMark) != std::string::npos;
}

/// The member behind the credential, when it is a plain word, is shown.
void CheckRestIsShown(const Credential& credential, std::size_t form, const std::string& shown)
{
    const std::string& word = credential.otherValue;
    const std::string quote = form == 3 ? R"(\")" : R"(")";
    if (form <= 3 && shown.size() < protocol::kLoggedTextLimit && Word(word, "") == word)
        FUZZ_CHECK(shown.find(quote + "after" + quote + ":" + quote + word + quote) != std::string::npos);
}

void CheckHidden(const Credential& credential, std::size_t form)
{
    constexpr std::size_t kUrlForms = 6; // these are for LoggableText alone
    const std::string text = TextWith(credential, form);
    if (text.find(kMark) != text.rfind(kMark)) // it is elsewhere too
        return;
    const std::string shown = Shown(text);
    FUZZ_CHECK(!HoldsMark(shown));
    CheckRestIsShown(credential, form, shown);
    if (form < kUrlForms)
        FUZZ_CHECK(!HoldsMark(ShownByTool(text)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::CInput input(data, size);
    const unsigned form = input.Byte();
    if (form >= '0' && form <= '7') {
        CheckHidden(ReadCredential(input), form - '0');
        return 0;
    }
    const std::string text = input.Rest();
    (void)Shown(text);
    (void)ShownByTool(text);
    return 0;
}
