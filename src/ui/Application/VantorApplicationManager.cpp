#include "ui/Application/VantorApplicationManager.h"

#include "VantorGUIToolkit/UiSingleton.h"

namespace video {

CVantorApplicationManager& CVantorApplicationManager::Instance()
{
    return VantorGUIToolkit::CUiSingleton<CVantorApplicationManager>::Instance();
}

void CVantorApplicationManager::SetStartParameters(const QString& skin, std::int32_t language,
                                                   std::int32_t versionType)
{
    m_skinType = skin;
    m_language = language;
    m_versionType = versionType;
}

} // namespace video
