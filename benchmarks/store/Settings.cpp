#include "store/Groups.h"

#include "Base/MessageLoop.h"
#include "logical/System/SystemConfig.h"
#include "store/Bare.h"
#include "store/Comparison.h"

#include <cstdio>

namespace bench {
namespace {

using video::VideoSystemConfigSession;
using video::VideoSystemConfigStruct;

/// The folders are in no table.
class CNoPaths : public vantor::ILocalDataPath
{
public:
    vantor::SaveFolders Folders() const override { return {}; }
    void SetFolders(const vantor::SaveFolders&) override {}
};

/// The row that round makes.
std::string InsertOf(int round)
{
    VideoSystemConfigStruct record;
    record.VideoFileFormat = round & 1;
    return VideoSystemConfigSession::InsertText(record);
}

} // namespace

void MeasureSettings(const Kind& kind, bool quick)
{
    const CStoreFolder ours(kind);
    const CStoreFolder bare(kind);
    video::CBaseDBConn connection(ours.Path(), "VideoSystem");
    CBare engine(bare.Database(), kind.key);
    CNoPaths paths;
    Base::CMessageLoopForNotify notifications;
    video::CSystemConfig config(connection, paths, notifications, {}, [] {});
    config.Load();
    config.SetVideoFileFormat(1);

    const std::string inserts[] = {InsertOf(0), InsertOf(1)};
    const std::string name = kind.name;
    Compare(
        "settings-save." + name, 1, quick ? 500 : 5000,
        [&](int round) {
            config.SetVideoFileFormat(round & 1);
            return std::size_t{1};
        },
        [&](int round) {
            engine.Run("BEGIN IMMEDIATE");
            engine.Run("DELETE FROM VideoSystemConfigTable");
            engine.Run(inserts[round & 1]);
            engine.Run("COMMIT");
            return std::size_t{1};
        });
    VideoSystemConfigStruct saved;
    if (!VideoSystemConfigSession(connection).Load(saved) ||
        saved.VideoFileFormat != config.VideoFileFormat())
        Fail("the settings were not saved");

    const std::size_t calls = quick ? 100000 : 1000000;
    CSamples samples(calls);
    samples.Begin();
    for (std::size_t call = 0; call < calls; ++call) {
        config.SetVideoFileFormat(saved.VideoFileFormat);
        samples.Tick();
    }
    samples.Print("store", "settings-save-unchanged." + name, 0);
    notifications.Stop();
}

} // namespace bench
