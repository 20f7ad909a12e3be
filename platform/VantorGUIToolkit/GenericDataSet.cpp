#include "VantorGUIToolkit/GenericDataSet.h"

#include "Base/Log.h"

#include <QFile>

namespace VantorGUIToolkit {

namespace {

bool Refuse(const QString& name, const std::string& problem)
{
    BASE_WARN("Failed to load the data set [%s]: %s.", name.toUtf8().constData(), problem.c_str());
    return false;
}

} // namespace

bool CGenericDataSet::load(const QString& path)
{
    m_root = {};
    if (path.isEmpty())
        return Refuse(path, "no name");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Refuse(path, file.errorString().toStdString());
    return loadContent(file.read(static_cast<qint64>(kMaxBytes) + 1), path);
}

bool CGenericDataSet::loadContent(const QByteArray& content, const QString& name)
{
    m_root = {};
    std::string problem;
    const std::string_view document(content.constData(), static_cast<std::size_t>(content.size()));
    constexpr XmlTree::Limits kLimits{kMaxBytes, kMaxDepth, kMaxElements};
    return XmlTree::Read(document, kLimits, XmlTree::Encoding::Declared, m_root, problem) ||
           Refuse(name, problem);
}

} // namespace VantorGUIToolkit
