#include "framework/ui/pages/DeviceForm.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace framework {

namespace {

constexpr int kLongestName = 64;

QString Text(const char* key)
{
    return QCoreApplication::translate("DeviceForm", key);
}

// Digits and dots only are meant as an IPv4 address, so that "192.168.1.300" is no host name.
bool IsAddress(const QString& address)
{
    static const QRegularExpression digits("^[0-9.]+$");
    static const QRegularExpression ipv4(R"(^((25[0-5]|2[0-4]\d|1?\d?\d)\.){3}(25[0-5]|2[0-4]\d|1?\d?\d)$)");
    static const QRegularExpression host("^(?=.{1,253}$)[A-Za-z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?(\\.[A-Za-"
                                         "z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?)*$");
    static const QRegularExpression ipv6("^(?=[^:]*:[^:]*:)[0-9A-Fa-f:]{2,39}(%[A-Za-z0-9]{1,15})?$");
    if (digits.match(address).hasMatch())
        return ipv4.match(address).hasMatch();
    return host.match(address).hasMatch() || ipv6.match(address).hasMatch();
}

QString NameError(const DeviceEntry& entry, const std::vector<std::string>& others)
{
    const QString name = QString::fromStdString(entry.name);
    if (name.size() > kLongestName)
        return Text(QT_TRANSLATE_NOOP("DeviceForm", "A name has at most 64 characters."));
    if (std::find(others.begin(), others.end(), entry.name) != others.end())
        return Text(QT_TRANSLATE_NOOP("DeviceForm", "Another device has this name."));
    return {};
}

QString AddressError(const DeviceEntry& entry)
{
    if (entry.address.empty())
        return Text(QT_TRANSLATE_NOOP("DeviceForm", "Enter a host name or an IP address."));
    if (!IsAddress(QString::fromStdString(entry.address)))
        return Text(QT_TRANSLATE_NOOP("DeviceForm", "This is neither a host name nor an IP address."));
    return {};
}

QString UserNameError(const DeviceEntry& entry)
{
    return entry.userName.empty() ? Text(QT_TRANSLATE_NOOP("DeviceForm", "Enter the user of the device."))
                                  : QString();
}

} // namespace

std::map<DeviceField, QString> CheckDevice(const DeviceEntry& entry, const std::vector<std::string>& others)
{
    std::map<DeviceField, QString> errors = {{DeviceField::Name, NameError(entry, others)},
                                             {DeviceField::Address, AddressError(entry)},
                                             {DeviceField::UserName, UserNameError(entry)}};
    for (auto error = errors.begin(); error != errors.end();)
        error = error->second.isEmpty() ? errors.erase(error) : std::next(error);
    return errors;
}

std::string NameFor(const QString& own, const DeviceEntry& entry, const std::vector<std::string>& others)
{
    constexpr int kRoomForNumber = 4;
    QString wanted = own.trimmed().left(kLongestName - kRoomForNumber);
    if (wanted.isEmpty())
        wanted = QString::fromStdString(entry.address).left(kLongestName - kRoomForNumber);
    QString name = wanted;
    for (int number = 2; std::find(others.begin(), others.end(), name.toStdString()) != others.end();
         ++number)
        name = QStringLiteral("%1 %2").arg(wanted).arg(number);
    return name.toStdString();
}

} // namespace framework
