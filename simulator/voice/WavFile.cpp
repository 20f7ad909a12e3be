#include "simulator/voice/WavFile.h"

namespace simulator {

namespace {

constexpr std::uint32_t kHeaderLength = 44;
constexpr std::uint32_t kLongest = 1024U * 1024 * 1024;

void Put(std::string& header, std::uint32_t value, int octets)
{
    for (int i = 0; i < octets; ++i)
        header += static_cast<char>(value >> (8 * i));
}

} // namespace

std::unique_ptr<CWavFile> CWavFile::Create(const std::string& path, const WavFormat& format)
{
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file)
        return nullptr;
    std::unique_ptr<CWavFile> wav(new CWavFile(file, format));
    return wav->WriteHeader() ? std::move(wav) : nullptr;
}

bool CWavFile::WriteHeader()
{
    std::string header = "RIFF";
    Put(header, kHeaderLength - 8 + m_length, 4);
    header += "WAVEfmt ";
    Put(header, 16, 4);
    Put(header, m_format.tag, 2);
    Put(header, 1, 2);
    Put(header, m_format.rate, 4);
    Put(header, m_format.bytesPerSecond, 4);
    Put(header, m_format.blockAlign, 2);
    Put(header, m_format.bitsPerSample, 2);
    header += "data";
    Put(header, m_length, 4);
    return std::fseek(m_file.get(), 0, SEEK_SET) == 0 &&
           std::fwrite(header.data(), 1, header.size(), m_file.get()) == header.size() &&
           std::fseek(m_file.get(), 0, SEEK_END) == 0 && std::fflush(m_file.get()) == 0;
}

bool CWavFile::Write(std::string_view octets)
{
    if (octets.size() > kLongest - m_length ||
        std::fwrite(octets.data(), 1, octets.size(), m_file.get()) != octets.size())
        return false;
    m_length += static_cast<std::uint32_t>(octets.size());
    return WriteHeader();
}

} // namespace simulator
