#pragma once

#include <QStylePlugin>

/// Makes "CVantorStyle" known to Qt's factory of styles.
class StylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "VantorStyle.json")

public:
    /// A new style, owned by the caller; nullptr for any other key.
    QStyle* create(const QString& key) override;
};
