#include "QxNetSDK/library/ability/AbilityDocument.h"
#include "QxNetSDK/library/http/Answer.h"
#include "QxNetSDK/library/http/Digest.h"
#include "support/DevicePage.h"

#include <gtest/gtest.h>

namespace {

std::string LineWith(const std::string& bytes, const std::string& name)
{
    const std::size_t begin = bytes.find(name + ": ") + name.size() + 2;
    return bytes.substr(begin, bytes.find("\r\n", begin) - begin);
}

std::string Repeated(const std::string& text, int times)
{
    std::string all;
    while (times-- > 0)
        all += text;
    return all;
}

} // namespace

TEST(SdkDigest, AnswersThePagesChallengeAsThePageDoes)
{
    const auto page = PageMessages(DEVICE_PROTOCOL_PAGE);
    ASSERT_GE(page.size(), 4u);
    sdk::DigestChallenge challenge;
    ASSERT_TRUE(sdk::ReadChallenge(LineWith(page[1].bytes, "WWW-Authenticate"), challenge));
    EXPECT_EQ(LineWith(page[2].bytes, "Authorization"),
              sdk::DigestAuthorization(challenge, {"admin", "secret", "POST", "/vantor/device/v1/session",
                                                   "f2a1c3e59b70d8462f1b0c7de35a9481"}));
}

TEST(SdkDigest, TakesOnlyChallengesThatItCanAnswer)
{
    const std::pair<const char*, bool> rows[] = {
        {"Digest realm=\"a\", nonce=\"b\", qop=\"auth,auth-int\", algorithm=SHA-256", true},
        {"digest  REALM=\"a\\\"\" ,qop=auth,nonce=b,algorithm=SHA-256,x=y", true},
        {"Digest realm=\"a\", nonce=\"\", qop=\"auth\", algorithm=SHA-256", false},
        {"Digest realm=\"a\", nonce=\"b\", qop=\"auth-int\", algorithm=SHA-256", false},
        {"Digest realm=\"a\", nonce=\"b\", qop=\"auth\"", false},
        {"Digest realm=\"a\", nonce=\"b, qop=auth, algorithm=SHA-256", false},
        {"Digest nonce=\"b\", nonce=\"c\", qop=auth, algorithm=SHA-256", false},
        {"Digest nonce=\"b\\", false},
        {"Digest ", false},
        {"", false},
    };
    for (const auto& [text, isTaken] : rows) {
        sdk::DigestChallenge challenge;
        EXPECT_EQ(sdk::ReadChallenge(text, challenge), isTaken) << text;
    }
}

TEST(SdkDigest, FindsTheChallengeThatItCanAnswerAmongOthers)
{
    const std::string good =
        "WWW-Authenticate: Digest realm=\"a\", nonce=\"b\", qop=\"auth\", algorithm=SHA-256, stale=TRUE\r\n";
    const std::string md5 =
        "WWW-Authenticate: Digest realm=\"a\", nonce=\"c\", qop=\"auth\", algorithm=MD5\r\n";
    const std::string other =
        "WWW-Authenticate: Digest realm=\"SHA-256\", nonce=\"d\", qop=\"auth\", algorithm=SHA-256-sess\r\n";
    for (const std::string& offered : {md5 + good, good + md5, good + other, other + good}) {
        sdk::CAnswerReader reader({200, 0, 0});
        const std::string bytes =
            "HTTP/1.1 401 No\r\nVantor-Protocol: 1\r\nWWW-Authenticate: Basic realm=\"a\"\r\n" + offered +
            "Content-Length: 0\r\n\r\n";
        EXPECT_FALSE(reader.Take(bytes.data(), bytes.size()));
        sdk::DigestChallenge challenge;
        EXPECT_TRUE(sdk::ReadChallenge(reader.Result().challenge, challenge)) << offered;
        EXPECT_EQ(challenge.nonce, "b");
        EXPECT_TRUE(challenge.isStale);
    }
}

TEST(SdkRequest, NamesTheHostAsOthersKnowIt)
{
    EXPECT_EQ(sdk::HostText("camera", 80), "camera:80");
    EXPECT_EQ(sdk::HostText("::1", 8000), "[::1]:8000");
    EXPECT_EQ(sdk::HostText("fe80::1%eth0", 80), "[fe80::1]:80");
}

TEST(SdkAnswer, IsTheSameHoweverItsBytesArrive)
{
    int answers = 0;
    for (const PageMessage& message : PageMessages(DEVICE_PROTOCOL_PAGE)) {
        if (message.isRequest)
            continue;
        const unsigned status = static_cast<unsigned>(std::stoul(message.bytes.substr(9, 3)));
        for (const std::size_t step : {std::size_t{1}, std::size_t{7}, message.bytes.size()}) {
            sdk::CAnswerReader reader({status, 0, 4096});
            for (std::size_t at = 0; at < message.bytes.size(); at += step) {
                EXPECT_FALSE(reader.IsComplete());
                EXPECT_FALSE(
                    reader.Take(message.bytes.data() + at, std::min(step, message.bytes.size() - at)));
            }
            ASSERT_TRUE(reader.IsComplete());
            EXPECT_EQ(reader.Result().status, status);
            EXPECT_EQ(reader.Result().body, message.bytes.substr(message.bytes.find("\r\n\r\n") + 4));
            EXPECT_TRUE(reader.Result().keepsAlive);
        }
        ++answers;
    }
    EXPECT_EQ(answers, 7);
}

TEST(SdkAbility, DocumentsAreTakenOnlyWithinTheirLimits)
{
    const std::string deep = Repeated("<a>", 16) + "x" + Repeated("</a>", 16);
    const std::string wide = "<a>" + Repeated("<b/>", 19999) + "</a>";
    const std::pair<std::string, bool> rows[] = {
        {"<?xml version=\"1.0\" encoding=\"utf-8\"?><a b=\"1\">\xC3\xA4&amp;</a>", true},
        {deep, true},
        {"<a>" + deep + "</a>", false},
        {wide, true},
        {"<a>" + wide + "</a>", false},
        {"<!DOCTYPE a [<!ENTITY b \"c\">]><a>&b;</a>", false},
        {"<!DOCTYPE a SYSTEM \"http://192.0.2.1/a.dtd\"><a/>", false},
        {"<a>&b;</a>", false},
        {"<a>" + std::string(4093, 'x') + "</a>", true},
        {"<a>" + std::string(4094, 'x') + "</a>", false},
        {"<a><b></a>", false},
        {"<a/><b/>", false},
        {"<a>\xE4</a>", false},
        {std::string("<a/>\0", 5), false},
        {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xE4</a>", false},
        {"<a><!-- <!DOCTYPE a> --></a>", true},
        {"", false},
        {"text", false},
    };
    for (const auto& [text, isTaken] : rows)
        EXPECT_EQ(sdk::IsAbilityDocument(text), isTaken) << text.substr(0, 60);
}
