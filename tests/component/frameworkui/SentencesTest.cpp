#include "framework/ui/parts/Sentences.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

using namespace framework;

namespace {

/// Answers with the key in brackets, so that one sees what was looked up.
struct BracketTranslator : QTranslator
{
    QString translate(const char*, const char* key, const char*, int) const override
    {
        return "[" + QString(key) + "]";
    }
    bool isEmpty() const override { return false; }
};

TEST(Sentences, AreFoundByTheirFormAndKeepTheirNames)
{
    BracketTranslator translator;
    QCoreApplication::installTranslator(&translator);
    QLocale::setDefault(QLocale::English);
    const std::pair<const char*, const char*> rows[] = {
        {"The component is ready.", "[The component is ready.]"},
        {"Device \"Gate %2 (north).\" was added.", "[Device \"Gate %2 (north).\" was added.]"},
        {"User \"b\" took over from \"%1\".", "[User \"b\" took over from \"%1\".]"},
        {"The component ended with signal 9 (SIGKILL). It is started again in 2 s.",
         "[The component ended with signal 9 (SIGKILL). It is started again in 2 s.]"},
        {"Changed settings: skin, dateFormat.", "[Changed settings: [skin] and [date format].]"},
        {"Motion at the gate", "Motion at the gate"},
    };
    for (const auto& [sentence, shown] : rows)
        EXPECT_EQ(InUserLanguage(sentence).toStdString(), shown);
    QCoreApplication::removeTranslator(&translator);
}

} // namespace
