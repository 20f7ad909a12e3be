#pragma once

#include <cstddef>
#include <string>

namespace bench {

/// The limit that the channel is compared with: blocking read and write on a Unix stream socket, each message
/// led by four bytes of length. Reads are as large as what comes.
class CRawStream
{
public:
    explicit CRawStream(int handle);
    ~CRawStream();
    CRawStream(const CRawStream&) = delete;
    CRawStream& operator=(const CRawStream&) = delete;

    /// Sends size bytes of this stream's buffer.
    void Send(std::size_t size);

    /// Receives one message; its size. 0 at the end.
    std::size_t Receive();

private:
    bool Fill(std::size_t wanted);

    const int m_handle;
    std::string m_out;
    std::string m_in;
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
};

/// Two connected handles.
void MakeStreamPair(int handles[2]);

} // namespace bench
