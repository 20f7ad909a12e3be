#include "framework/ui/demonstration/MotionJpeg.h"

#include <QtEndian>

#include <algorithm>
#include <initializer_list>

namespace framework {

namespace {

constexpr quint32 kHasIndex = 0x10; ///< AVIF_HASINDEX of the main header
constexpr quint32 kKeyFrame = 0x10; ///< AVIIF_KEYFRAME of an index entry
constexpr int kBitsPerPixel = 24;
const char kFrame[] = "00dc"; ///< compressed video of stream 0

QByteArray Number(quint32 value)
{
    const quint32 bytes = qToLittleEndian(value);
    return {reinterpret_cast<const char*>(&bytes), sizeof(bytes)};
}

QByteArray Numbers(std::initializer_list<quint32> values)
{
    QByteArray bytes;
    for (const quint32 value : values)
        bytes += Number(value);
    return bytes;
}

/// RIFF chunks begin at even places.
QByteArray Chunk(const char* name, const QByteArray& content)
{
    const QByteArray padding(content.size() % 2, '\0');
    return name + Number(quint32(content.size())) + content + padding;
}

QByteArray List(const char* name, const QByteArray& content)
{
    return Chunk("LIST", name + content);
}

QByteArray Header(const QSize& size, int framesPerSecond, quint32 frames, quint32 largest)
{
    constexpr quint32 kMicrosecondsInSecond = 1000000;
    const quint32 width = quint32(size.width());
    const quint32 height = quint32(size.height());
    const quint32 rate = quint32(framesPerSecond);
    const QByteArray main = Numbers({kMicrosecondsInSecond / rate, largest * rate, 0, kHasIndex, frames, 0, 1,
                                     largest, width, height, 0, 0, 0, 0});
    const QByteArray stream =
        "vidsMJPG" + Numbers({0, 0, 0, 1, rate, 0, frames, largest, ~0u, 0, 0, height << 16 | width});
    const QByteArray format = Numbers({40, width, height, kBitsPerPixel << 16 | 1}) + "MJPG" +
                              Numbers({width * height * kBitsPerPixel / 8, 0, 0, 0, 0});
    return List("hdrl", Chunk("avih", main) + List("strl", Chunk("strh", stream) + Chunk("strf", format)));
}

} // namespace

QByteArray MotionJpegAvi(const QSize& size, int framesPerSecond, const std::vector<QByteArray>& frames)
{
    QByteArray movie;
    QByteArray index;
    int largest = 0;
    for (const QByteArray& frame : frames) {
        const quint32 place = quint32(movie.size()) + 4; // from the list's name on
        index += kFrame + Numbers({kKeyFrame, place, quint32(frame.size())});
        movie += Chunk(kFrame, frame);
        largest = std::max(largest, frame.size());
    }
    return Chunk("RIFF", "AVI " + Header(size, framesPerSecond, quint32(frames.size()), quint32(largest)) +
                             List("movi", movie) + Chunk("idx1", index));
}

} // namespace framework
