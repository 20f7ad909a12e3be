#pragma once

#include <QComboBox>
#include <QFileDialog>

class QToolButton;

namespace VantorGUIToolkit {

/// Shows one path, and lets the user browse for another with the button in it or with the keys that open a
/// combo box. currentText() is the path exactly as it was set; it is shown with the system's separators and
/// cut in the middle where it is too long, in full in the tool tip.
class CPathComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit CPathComboBox(QWidget* parent = nullptr);

    /// What can be chosen; QFileDialog::Directory until set.
    void setFileMode(QFileDialog::FileMode mode) { m_mode = mode; }
    QFileDialog::FileMode fileMode() const { return m_mode; }

    /// The path as the single item. The user's choice has "/" as separator.
    void setPath(const QString& path);
    QString path() const { return currentText(); }

    void showPopup() override;
    QSize minimumSizeHint() const override;

signals:
    /// The user chose another path.
    void SignalPathChanged(const QString& path);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Browse();

    QToolButton* m_browse;
    QFileDialog::FileMode m_mode = QFileDialog::Directory;
};

} // namespace VantorGUIToolkit
