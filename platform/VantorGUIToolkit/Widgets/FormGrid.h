#pragma once

#include <QHash>
#include <QWidget>

class QGridLayout;
class QLabel;

namespace VantorGUIToolkit {

/// Rows of a label and a field, the labels in one column as wide as the widest of them. A field that holds
/// something that cannot be taken is marked, and the reason stands below it. The label's mnemonic leads to
/// the field, whose accessible name is the label unless it has one.
class CFormGrid : public QWidget
{
    Q_OBJECT

public:
    explicit CFormGrid(QWidget* parent = nullptr);

    /// The form becomes the field's parent. hint: a line below the field, empty for none.
    void AddRow(const QString& label, QWidget* field, const QString& hint = {});
    /// A widget over the width of the field column, such as a check box, which carries its own label.
    void AddField(QWidget* field);
    void AddHeading(const QString& text);

    /// Marks the field and shows the reason below it; an empty text takes both away. Nothing for a widget
    /// that is no field of this form.
    void setFieldError(QWidget* field, const QString& text);
    QString fieldError(QWidget* field) const;
    bool HasErrors() const;

    /// Moves the focus to the first field that is marked. False when there is none.
    bool FocusFirstError();

private:
    void AddLineBelow(QWidget* field);

    QGridLayout* m_grid;
    QList<QWidget*> m_fields;
    QHash<QWidget*, QLabel*> m_errors; ///< the lines below the fields, hidden without error
};

} // namespace VantorGUIToolkit
