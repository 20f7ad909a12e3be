#include "UiDataController/Tree/ElementTexts.h"

#include "VantorGUIToolkit/Icons.h"

#include <QCoreApplication>

namespace UiDataController {

namespace {

QString Translated(const char* text)
{
    return QCoreApplication::translate("ResourceTree", text);
}

QString IconName(ElementType type)
{
    switch (type) {
    case ElementType::Channel:
        return "camera";
    case ElementType::Device:
        return "recorder";
    case ElementType::Group:
        return "folder";
    case ElementType::StorageServer:
        return "storage";
    }
    return "question";
}

} // namespace

QString stateText(ElementState state)
{
    switch (state) {
    case ElementState::Offline:
        return Translated(QT_TRANSLATE_NOOP("ResourceTree", "Offline"));
    case ElementState::Online:
        return Translated(QT_TRANSLATE_NOOP("ResourceTree", "Online"));
    case ElementState::Recording:
        return Translated(QT_TRANSLATE_NOOP("ResourceTree", "Recording"));
    case ElementState::NotSupported:
        return Translated(QT_TRANSLATE_NOOP("ResourceTree", "Not supported"));
    case ElementState::Connecting:
        return Translated(QT_TRANSLATE_NOOP("ResourceTree", "Connecting"));
    }
    return {};
}

QString elementToolTip(const ElementInfo& info, const QString& deviceName)
{
    QStringList lines = {"<b>" + info.name.toHtmlEscaped() + "</b>"};
    if (!deviceName.isEmpty())
        lines << deviceName.toHtmlEscaped();
    if (info.type != ElementType::Group)
        lines << stateText(info.state).toHtmlEscaped();
    if (!info.problem.isEmpty())
        lines << info.problem.toHtmlEscaped();
    return "<div>" + lines.join("<br>") + "</div>";
}

bool isReachable(ElementState state)
{
    return state == ElementState::Online || state == ElementState::Recording;
}

QIcon elementIcon(ElementType type, ElementState state)
{
    const bool isFaded = type != ElementType::Group && !isReachable(state);
    return isFaded ? VantorGUIToolkit::fadedIcon(IconName(type)) : VantorGUIToolkit::icon(IconName(type));
}

} // namespace UiDataController
