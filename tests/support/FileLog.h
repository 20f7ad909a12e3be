#pragma once

#include <fstream>
#include <string>

/// Writes settings by which a program's log goes to that file, from that level on, a line each in log4j's
/// pattern.
inline void WriteLogSettings(const std::string& settings, const std::string& file,
                             const std::string& pattern = "%m%n", const std::string& level = "DEBUG")
{
    std::ofstream(settings) << "log4j.rootLogger=" << level << ", F\n"
                            << "log4j.appender.F=org.apache.log4j.FileAppender\n"
                            << "log4j.appender.F.layout=org.apache.log4j.PatternLayout\n"
                            << "log4j.appender.F.layout.ConversionPattern=" << pattern << '\n'
                            << "log4j.appender.F.File=" << file << '\n';
}
