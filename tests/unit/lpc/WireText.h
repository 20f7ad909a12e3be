#pragma once

#include "LPC_Wire/FrameReader.h"
#include "support/WireFrames.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

/// What a reader made of some bytes.
struct Reading
{
    std::vector<lpc::WireMessage> messages;
    lpc::Fault fault = lpc::Fault::None;
    bool insideMessage = false;
};

/// Puts bytes into a reader, at most `piece` at a time, as a socket would.
inline Reading ReadAll(const std::string& bytes, std::size_t piece = std::string::npos)
{
    lpc::CFrameReader reader;
    Reading reading;
    std::size_t done = 0;
    while (done < bytes.size() && reading.fault == lpc::Fault::None) {
        std::size_t left = std::min(piece, bytes.size() - done);
        std::size_t given = 0;
        for (const lpc::MutableSpan& span : reader.Room()) {
            const std::size_t part = std::min(left, span.size);
            if (part > 0)
                std::memcpy(span.data, bytes.data() + done + given, part);
            given += part;
            left -= part;
        }
        reader.Commit(given);
        done += given;
        for (lpc::WireMessage message; reader.Next(message);)
            reading.messages.push_back(std::move(message));
        reading.fault = reader.GetFault();
    }
    reading.insideMessage = reader.InsideMessage();
    return reading;
}
