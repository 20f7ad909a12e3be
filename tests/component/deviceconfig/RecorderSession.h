#pragma once

#include "Base/Log.h"
#include "component/sdk/SdkClient.h"
#include "support/DeviceSim.h"
#include "support/FileContent.h"
#include "support/TestDataRoot.h"

#include <fstream>
#include <sstream>
#include <vector>

using Strings = std::vector<std::string>;

/// A session with a simulated recorder of two cameras, and the log file of the test.
class RecorderSession
{
public:
    RecorderSession()
    {
        const std::string properties = m_root.Path() + "log.properties";
        std::ofstream(properties) << "log4j.rootLogger=DEBUG, file\n"
                                     "log4j.appender.file=org.apache.log4j.FileAppender\n"
                                     "log4j.appender.file.layout=org.apache.log4j.PatternLayout\n"
                                     "log4j.appender.file.layout.ConversionPattern=%p %m%n\n"
                                  << "log4j.appender.file.File=" << LogPath() << "\n";
        EXPECT_TRUE(Base::CLog::Instance().InitLog(properties));
        QxNetLogin login = CSdk::To(m_device.Port(), 20000);
        std::strcpy(login.password, "vantor-device");
        m_login = QxNet_Login(&login, nullptr);
        EXPECT_GE(m_login, 0) << testing::PrintToString(LastError());
    }
    ~RecorderSession() { Base::CLog::Instance().UninitLog(); }

    std::int32_t Login() const { return m_login; }
    DeviceSim& Device() { return m_device; }

    /// The messages of the error lines that the log file has got since this was asked last.
    Strings NewErrors()
    {
        const std::string all = FileContent(LogPath());
        std::istringstream lines(all.substr(m_seen));
        m_seen = all.size();
        Strings errors;
        for (std::string line; std::getline(lines, line);)
            if (line.compare(0, 6, "ERROR ") == 0)
                errors.push_back(line.substr(6));
        return errors;
    }

    bool HasInfo(const std::string& message) const
    {
        return FileContent(LogPath()).find("\nINFO " + message + "\n") != std::string::npos;
    }

private:
    std::string LogPath() const { return m_root.Path() + "test.log"; }

    TestDataRoot m_root;
    CSdk m_sdk;
    DeviceSim m_device{{"--devices", "1", "--channels", "2", "--first-kind", "recorder"}};
    std::int32_t m_login = -1;
    std::size_t m_seen = 0;
};
