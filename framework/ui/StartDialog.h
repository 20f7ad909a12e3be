#pragma once

#include "VantorGUIToolkit/Widgets/Dialog.h"
#include "framework/core/FrameworkSettings.h"

namespace framework {

class CLanguageBox;
class CSkinPicker;

/// Asks at the first start for skin and language. GUI thread.
class CStartDialog : public VantorGUIToolkit::CDialog
{
    Q_OBJECT

public:
    explicit CStartDialog(const FrameworkChoices& choices);

    FrameworkChoices Chosen() const;

private:
    FrameworkChoices m_choices;
    CSkinPicker* m_skin;
    CLanguageBox* m_language;
};

} // namespace framework
