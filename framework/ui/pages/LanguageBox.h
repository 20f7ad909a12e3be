#pragma once

#include <QComboBox>

namespace framework {

/// The languages, each by its own name. GUI thread.
class CLanguageBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CLanguageBox(QWidget* parent = nullptr);

    /// See VantorGUIToolkit/Language.h.
    int Language() const { return currentData().toInt(); }
    void SetLanguage(int language) { setCurrentIndex(findData(language)); }
};

} // namespace framework
