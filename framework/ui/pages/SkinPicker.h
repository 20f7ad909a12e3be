#pragma once

#include <QAbstractButton>
#include <QWidget>

#include <optional>

class QButtonGroup;

namespace framework {

/// The skins with their names in the language of the user, in the order in which they are offered.
struct SkinChoice
{
    QString skin; ///< for example "BlueSkin"
    QString title;
};
std::vector<SkinChoice> AllSkins();

/// Shows the skins as small pictures of a window in their colours, of which one is chosen. GUI thread.
class CSkinPicker : public QWidget
{
    Q_OBJECT

public:
    explicit CSkinPicker(QWidget* parent = nullptr);

    QString Skin() const;
    void SetSkin(const QString& skin);

signals:
    void SkinChosen(const QString& skin);

private:
    QButtonGroup* m_group;
};

} // namespace framework
