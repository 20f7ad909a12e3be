#include "framework/ui/demonstration/CameraPicture.h"

#include <QBuffer>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace framework {

namespace {

constexpr int kHorizon = 190;
constexpr int kTextSize = 16;
constexpr int kMargin = 12;
constexpr int kJpegQuality = 82;

/// 0 at midnight, 1 at noon.
double DaylightAt(const QTime& time)
{
    constexpr double kSecondsInDay = 86400;
    constexpr double kPi = 3.14159265358979;
    const double part = QTime(0, 0).secsTo(time) / kSecondsInDay;
    return 0.5 - 0.5 * std::cos(part * 2 * kPi);
}

/// A colour of the scene under the light.
QColor Lit(int hue, int saturation, int value, double light)
{
    return QColor::fromHsv((hue % 360 + 360) % 360, saturation, int(value * (0.25 + 0.75 * light)));
}

void PaintGround(QPainter& painter, int scene, double light)
{
    QLinearGradient sky(0, 0, 0, kHorizon);
    sky.setColorAt(0, Lit(212, 130, 200, light));
    sky.setColorAt(1, Lit(205, 50, 235, light));
    painter.fillRect(0, 0, kDemonstrationWidth, kHorizon, sky);
    QLinearGradient ground(0, kHorizon, 0, kDemonstrationHeight);
    ground.setColorAt(0, Lit(40 + scene * 17, 30, 130, light));
    ground.setColorAt(1, Lit(40 + scene * 17, 40, 80, light));
    painter.fillRect(0, kHorizon, kDemonstrationWidth, kDemonstrationHeight - kHorizon, ground);
}

void PaintHouses(QPainter& painter, int scene, double light)
{
    const int first = (scene * 37) % 60 - 40;
    for (int house = 0; house < 6; ++house) {
        const int height = 60 + (house * 53 + scene * 29) % 90;
        const QRect wall(first + house * 118, kHorizon - height + 20, 96, height);
        painter.fillRect(wall, Lit(20 + scene * 40 + house * 9, 45, 150 + (house * 31) % 50, light));
        for (int window = 0; window < 6; ++window) {
            const QRect glass(wall.left() + 12 + window % 3 * 27, wall.top() + 12 + window / 3 * 26, 16, 14);
            const bool isLit = light < 0.4 && (house + window + scene) % 3 == 0;
            painter.fillRect(glass, isLit ? QColor(255, 214, 130) : Lit(210, 60, 90, light));
        }
    }
}

void PaintPassing(QPainter& painter, int scene, double light, double passed)
{
    constexpr int kLength = 132;
    const int left = int(passed * (kDemonstrationWidth + kLength)) - kLength;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Lit(scene * 67, 170, 200, light));
    painter.drawRoundedRect(left, 246, kLength, 34, 10, 10);
    painter.drawRoundedRect(left + 26, 224, 74, 34, 10, 10);
    painter.setBrush(Lit(0, 0, 40, light));
    for (const int wheel : {20, 92})
        painter.drawEllipse(left + wheel, 266, 26, 26);
    if (light < 0.4) {
        painter.setBrush(QColor(255, 244, 200));
        painter.drawEllipse(left + kLength - 8, 254, 10, 10);
    }
}

void PaintCaption(QPainter& painter, const QString& camera, const QDateTime& moment)
{
    QFont font;
    font.setPixelSize(kTextSize);
    font.setBold(true);
    painter.setFont(font);
    const auto write = [&](const QString& text, int flags) {
        const QRect area = QRect(0, 0, kDemonstrationWidth, kDemonstrationHeight)
                               .adjusted(kMargin, kMargin, -kMargin, -kMargin);
        painter.setPen(Qt::black);
        painter.drawText(area.translated(1, 1), flags, text);
        painter.setPen(Qt::white);
        painter.drawText(area, flags, text);
    };
    write(camera, Qt::AlignLeft | Qt::AlignBottom);
    write(moment.toString("yyyy-MM-dd HH:mm:ss"), Qt::AlignRight | Qt::AlignTop);
}

} // namespace

QImage PaintCamera(const QString& camera, int scene, const QDateTime& moment, double passed)
{
    QImage picture(kDemonstrationWidth, kDemonstrationHeight, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double light = DaylightAt(moment.time());
    PaintGround(painter, scene, light);
    PaintHouses(painter, scene, light);
    PaintPassing(painter, scene, light, std::clamp(passed, 0.0, 1.0));
    PaintCaption(painter, camera, moment);
    return picture;
}

QByteArray Jpeg(const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "JPEG", kJpegQuality);
    return bytes;
}

} // namespace framework
