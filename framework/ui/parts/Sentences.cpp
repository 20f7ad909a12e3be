#include "framework/ui/parts/Sentences.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <vector>

namespace framework {

namespace {

constexpr char kContext[] = "Sentences";
constexpr char kSettingsChanged[] = QT_TRANSLATE_NOOP("Sentences", "Changed settings: %1.");

// %1 and %2 stand for names, which stay as they are.
constexpr const char* kSentences[] = {
    QT_TRANSLATE_NOOP("Sentences", "The component was started."),
    QT_TRANSLATE_NOOP("Sentences", "The component has joined."),
    QT_TRANSLATE_NOOP("Sentences", "The component is ready."),
    QT_TRANSLATE_NOOP("Sentences", "The component has left."),
    QT_TRANSLATE_NOOP("Sentences", "The component was asked to end."),
    QT_TRANSLATE_NOOP("Sentences", "The component is not started again."),
    QT_TRANSLATE_NOOP("Sentences", "The component ended with exit code %1. It is started again in %2 s."),
    QT_TRANSLATE_NOOP("Sentences", "The component ended with signal %1. It is started again in %2 s."),
    QT_TRANSLATE_NOOP(
        "Sentences", "The component ended with %1. It was started %2 times within a minute and is given up."),
    QT_TRANSLATE_NOOP("Sentences", "The component ended with exit code %1."),
    QT_TRANSLATE_NOOP("Sentences", "The component ended with signal %1."),
    QT_TRANSLATE_NOOP("Sentences", "The component cannot be started: %1."),
    QT_TRANSLATE_NOOP("Sentences", "Device \"%1\" was added."),
    QT_TRANSLATE_NOOP("Sentences", "Device \"%1\" was changed."),
    QT_TRANSLATE_NOOP("Sentences", "Device \"%1\" was removed."),
    QT_TRANSLATE_NOOP("Sentences", "Device \"%1\" is online."),
    QT_TRANSLATE_NOOP("Sentences", "Device \"%1\" is offline."),
    QT_TRANSLATE_NOOP("Sentences", "Test alarm of %1"),
    kSettingsChanged,
    QT_TRANSLATE_NOOP("Sentences", "The users were changed."),
    QT_TRANSLATE_NOOP("Sentences", "User \"%1\" took over from \"%2\"."),
    QT_TRANSLATE_NOOP("Sentences", "The address and port belong to another device."),
    QT_TRANSLATE_NOOP("Sentences", "The devices cannot be saved."),
    QT_TRANSLATE_NOOP("Sentences", "There are too many devices."),
    QT_TRANSLATE_NOOP("Sentences", "The user name must have at most 127 bytes."),
    QT_TRANSLATE_NOOP("Sentences", "The password must have at most 127 bytes."),
    QT_TRANSLATE_NOOP("Sentences", "The users cannot be saved."),
    QT_TRANSLATE_NOOP("Sentences", "There are too many users."),
    QT_TRANSLATE_NOOP("Sentences", "Somebody must be allowed to manage users."),
    QT_TRANSLATE_NOOP("Sentences", "The user is at work."),
};

/// The keys of the settings in a list of them.
constexpr std::pair<const char*, const char*> kSettings[] = {
    {"skin", QT_TRANSLATE_NOOP("Sentences", "skin")},
    {"language", QT_TRANSLATE_NOOP("Sentences", "language")},
    {"versionType", QT_TRANSLATE_NOOP("Sentences", "edition")},
    {"dateFormat", QT_TRANSLATE_NOOP("Sentences", "date format")},
    {"timeFormat", QT_TRANSLATE_NOOP("Sentences", "time format")},
    {"videoPath", QT_TRANSLATE_NOOP("Sentences", "folder of clips")},
    {"picturePath", QT_TRANSLATE_NOOP("Sentences", "folder of pictures")},
};

QString SettingName(const QString& key)
{
    for (const auto& [name, text] : kSettings)
        if (key == name)
            return QCoreApplication::translate(kContext, text);
    return key;
}

QString SettingNames(const QString& keys)
{
    QStringList names;
    for (const QString& key : keys.split(", "))
        names << SettingName(key);
    return QLocale().createSeparatedList(names);
}

struct Pattern
{
    const char* key;
    QRegularExpression form;
};

Pattern PatternOf(const char* key)
{
    QString form = QRegularExpression::escape(key);
    for (const char* number : {"1", "2"})
        form.replace(QString("\\%") + number, "(.*)");
    return {key, QRegularExpression(QRegularExpression::anchoredPattern(form),
                                    QRegularExpression::DotMatchesEverythingOption)};
}

const std::vector<Pattern>& Patterns()
{
    static const std::vector<Pattern> patterns = [] {
        std::vector<Pattern> all;
        for (const char* key : kSentences)
            all.push_back(PatternOf(key));
        return all;
    }();
    return patterns;
}

} // namespace

QString InUserLanguage(const std::string& sentence)
{
    const QString text = QString::fromStdString(sentence);
    for (const Pattern& pattern : Patterns()) {
        const QRegularExpressionMatch match = pattern.form.match(text);
        if (!match.hasMatch())
            continue;
        const QString translated = QCoreApplication::translate(kContext, pattern.key);
        switch (match.lastCapturedIndex()) {
        case 0:
            return translated;
        case 1:
            return translated.arg(pattern.key == kSettingsChanged ? SettingNames(match.captured(1))
                                                                  : match.captured(1));
        default:
            return translated.arg(match.captured(1), match.captured(2));
        }
    }
    return text;
}

} // namespace framework
