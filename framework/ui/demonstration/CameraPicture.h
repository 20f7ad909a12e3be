#pragma once

#include <QDateTime>
#include <QImage>
#include <QString>

namespace framework {

/// The size of the demonstration's pictures, in pixels.
constexpr int kDemonstrationWidth = 640;
constexpr int kDemonstrationHeight = 360;

/// A painted scene as a camera would see it: by the hour bright or dark, with the camera's name and the time.
/// scene: any number; a camera keeps its own. passed: how far something has moved through the scene, 0 to 1.
/// Any thread.
QImage PaintCamera(const QString& camera, int scene, const QDateTime& moment, double passed);

/// The picture as a JPEG file.
QByteArray Jpeg(const QImage& picture);

} // namespace framework
