#pragma once

#include "Protocol/JSONStruct/HTTP/LocalFileJSONStruct.h"

#include <QWidget>

class QButtonGroup;
class QComboBox;
class QPushButton;

namespace framework {

class CCameraBox;
class CResources;

/// What of the catalogue is to be listed: pictures or clips, whose, of which days, and with which text. GUI
/// thread.
class CLocalFileChoices : public QWidget
{
    Q_OBJECT

public:
    explicit CLocalFileChoices(QWidget* parent);

    /// Offers what there is. Whether another camera or group is chosen now.
    bool SetResources(const CResources& resources);
    protocol::LocalFileType Type() const;
    /// The question to the component; its guid is empty when there is no camera.
    protocol::LocalFileQuery Query() const;

signals:
    /// The question is another one.
    void Changed();
    void SearchChanged(const QString& text);

private:
    enum class Span { Today, Week, Month, All };

    QPushButton* AddKind(const QString& text, const char* iconName, const char* name,
                         protocol::LocalFileType type);

    QButtonGroup* m_kinds;
    CCameraBox* m_cameras;
    QComboBox* m_span;
};

} // namespace framework
