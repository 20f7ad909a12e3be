#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QTranslator;

namespace VantorGUIToolkit {

/// The translations that are installed in the application. GUI thread.
class CTranslations
{
public:
    CTranslations();
    ~CTranslations();
    CTranslations(const CTranslations&) = delete;
    CTranslations& operator=(const CTranslations&) = delete;

    /// Installs every file "<name>_<tag>.qm" of the folder (the tag as languageTag gives it), in the order of
    /// their names, in the place of those loaded before; keys that the language does not have are served in
    /// English. False, with a log line, when there is no file of the language or one of them cannot be read;
    /// the others are installed all the same.
    bool Load(const QString& dir, int language);

    /// The files that are installed, English fall-backs included, the strongest last.
    const QStringList& Files() const { return m_files; }

    /// Takes all of them out. May be called again.
    void Unload();

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    QStringList m_files;
};

} // namespace VantorGUIToolkit
