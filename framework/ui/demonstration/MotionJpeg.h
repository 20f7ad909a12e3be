#pragma once

#include <QByteArray>
#include <QSize>

#include <vector>

namespace framework {

/// An AVI file of JPEG pictures, which players know as motion JPEG. frames: JPEG files, all of this size.
QByteArray MotionJpegAvi(const QSize& size, int framesPerSecond, const std::vector<QByteArray>& frames);

} // namespace framework
