#include "VantorGUIToolkit/Translations.h"

#include "Base/Log.h"
#include "VantorGUIToolkit/Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

namespace VantorGUIToolkit {

namespace {

struct Loaded
{
    std::vector<std::unique_ptr<QTranslator>> translators;
    QStringList files;
};

/// Reads every file of one language. False when there is none or one of them cannot be read.
bool ReadAll(const QDir& dir, const QString& tag, Loaded& loaded)
{
    const QStringList names = dir.entryList({"*_" + tag + ".qm"}, QDir::Files, QDir::Name);
    if (names.isEmpty())
        BASE_WARN("There are no translations of language [%s] in [%s].", tag.toUtf8().constData(),
                  dir.absolutePath().toUtf8().constData());
    bool complete = !names.isEmpty();
    for (const QString& name : names) {
        auto translator = std::make_unique<QTranslator>();
        const QString path = dir.absoluteFilePath(name);
        if (!translator->load(path)) {
            BASE_WARN("Failed to load the translations [%s].", path.toUtf8().constData());
            complete = false;
            continue;
        }
        loaded.translators.push_back(std::move(translator));
        loaded.files.append(path);
    }
    return complete;
}

} // namespace

CTranslations::CTranslations() = default;

CTranslations::~CTranslations() = default;

bool CTranslations::Load(const QString& dir, int language)
{
    Loaded loaded;
    const QString tag = languageTag(language);
    const QString english = languageTag(English);
    if (tag != english)
        (void)ReadAll(dir, english, loaded);
    const bool complete = ReadAll(dir, tag, loaded);
    // A translator that goes takes itself out of the application.
    m_translators = std::move(loaded.translators);
    m_files = loaded.files;
    for (const auto& translator : m_translators)
        QCoreApplication::installTranslator(translator.get());
    return complete;
}

void CTranslations::Unload()
{
    m_translators.clear();
    m_files.clear();
}

} // namespace VantorGUIToolkit
