#pragma once

#include <QApplication>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>
