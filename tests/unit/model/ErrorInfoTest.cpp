#include "UiDataController/Errors/ErrorInfoMgr.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTranslator>

using UiDataController::CErrorInfoMgr;

namespace {

constexpr int kModule = 4711;

/// The numbers of the header by their names.
QMap<QString, int> ErrorNumbers()
{
    QFile header(PROJECT_ROOT "/platform/QxNetSDK/Errors.h");
    EXPECT_TRUE(header.open(QIODevice::ReadOnly));
    QMap<QString, int> numbers;
    auto found = QRegularExpression(R"((QXNET_ERROR_\w+) = (\d+))").globalMatch(header.readAll());
    while (found.hasNext()) {
        const auto each = found.next();
        numbers[each.captured(1)] = each.captured(2).toInt();
    }
    return numbers;
}

class ALanguage : public testing::TestWithParam<const char*>
{
protected:
    ALanguage()
    {
        EXPECT_TRUE(m_translator.load(QString(TRANSLATIONS "/UiDataController_%1.qm").arg(GetParam())));
        QCoreApplication::installTranslator(&m_translator);
    }

private:
    int m_count = 0;
    QCoreApplication m_application{m_count, nullptr};
    QTranslator m_translator;
};

TEST_P(ALanguage, HasATextOfItsOwnForEachError)
{
    const QMap<QString, int> numbers = ErrorNumbers();
    ASSERT_GT(numbers.size(), 30);
    QMap<QString, QString> owners{{CErrorInfoMgr::GetErrorInfoByCode(4, 5), "reason 5"},
                                  {CErrorInfoMgr::GetErrorInfoByCode(4, 0), "reason 0"}};
    const QString unknown = CErrorInfoMgr::GetErrorInfoByCode(99, kModule);
    for (const QString& number : {QString("99"), QString::number(kModule)})
        EXPECT_TRUE(unknown.contains(number)) << qPrintable(unknown);
    for (auto error = numbers.begin(); error != numbers.end(); ++error) {
        const QString text = CErrorInfoMgr::GetErrorInfoByCode(error.value(), kModule);
        EXPECT_FALSE(text.contains(QString::number(error.value()))) << qPrintable(error.key() + ": " + text);
        EXPECT_FALSE(owners.contains(text)) << qPrintable(error.key() + " and " + owners[text]);
        EXPECT_FALSE(text.contains('%'));
        owners[text] = error.key();
    }
    const QString version = CErrorInfoMgr::GetErrorInfoByCode(numbers["QXNET_ERROR_VERSION"], kModule);
    EXPECT_TRUE(version.contains(QString::number(kModule))) << qPrintable(version);
}

INSTANTIATE_TEST_SUITE_P(Languages, ALanguage, testing::Values("en", "de", "zh_CN", "ar", "he"),
                         [](const auto& row) { return std::string(row.param); });

} // namespace
