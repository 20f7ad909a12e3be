#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

namespace simulator {

/// How sound stands in a WAV file.
struct WavFormat
{
    std::uint16_t tag = 1; ///< of the format, as registered for RIFF
    std::uint16_t bitsPerSample = 16;
    std::uint32_t rate = 8000; ///< samples a second
    std::uint32_t bytesPerSecond = 16000;
    std::uint16_t blockAlign = 2;
};

/// A WAV file, one channel, that is whole after every write: its header always tells of what has been
/// written, so that it can be heard after a cut too.
class CWavFile
{
public:
    /// Null when the file cannot be made.
    static std::unique_ptr<CWavFile> Create(const std::string& path, const WavFormat& format);

    /// False when the disk takes no more or the file has a gigabyte.
    [[nodiscard]] bool Write(std::string_view octets);

private:
    struct Closer
    {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    CWavFile(std::FILE* file, const WavFormat& format) : m_file(file), m_format(format) {}
    bool WriteHeader();

    std::unique_ptr<std::FILE, Closer> m_file;
    const WavFormat m_format;
    std::uint32_t m_length = 0;
};

} // namespace simulator
