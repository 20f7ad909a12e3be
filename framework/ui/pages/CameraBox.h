#pragma once

#include "Protocol/JSONStruct/HTTP/LocalFileJSONStruct.h"

#include <QComboBox>

namespace framework {

class CResources;

/// Chooses a camera or a group of cameras: by its name from the list, which typing searches, or by an
/// identifier of a camera that is not in it. GUI thread.
class CCameraBox : public QComboBox
{
    Q_OBJECT

public:
    struct Choice
    {
        protocol::LocalFileCondition condition = protocol::LocalFileCondition::Camera;
        std::string guid; ///< empty: nothing is chosen
    };

    explicit CCameraBox(QWidget* parent);

    /// Lists what there is. The choice stays, if it is still there; else it is the first group.
    void Fill(const CResources& resources);
    Choice Chosen() const;

signals:
    void ChoiceChanged();

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void AddEntry(const QString& iconName, const QString& text, const std::string& guid,
                  protocol::LocalFileCondition condition);
    void Take();
    void AlignText();

    int m_taken = -1; ///< the entry that is chosen; -1: the identifier
    QString m_identifier;
};

} // namespace framework
