-- The component's own tables. The program reads rows with "SELECT *" and by column number: the order of the
-- columns is part of the schema.

CREATE TABLE PictureFile (
    ID         TEXT PRIMARY KEY NOT NULL,
    CameraID   TEXT,
    GroupID    TEXT,
    FileName   TEXT,
    FilePath   TEXT,
    OccurTime  TEXT,    -- "YYYY-MM-DD HH:MM:SS", universal time
    FileSize   INTEGER  -- KiB
);

CREATE INDEX PictureFileByPath ON PictureFile (FilePath);
CREATE INDEX PictureFileByCamera ON PictureFile (CameraID, OccurTime);
CREATE INDEX PictureFileByGroup ON PictureFile (GroupID, OccurTime);

CREATE TABLE VideoFile (
    ID          TEXT PRIMARY KEY NOT NULL,
    CameraID    TEXT,
    GroupID     TEXT,
    FileName    TEXT,
    FilePath    TEXT,
    PicturePath TEXT,
    OccurTime   TEXT,    -- times as above
    BeginTime   TEXT,
    EndTime     TEXT,
    FileSize    INTEGER  -- KiB
);

CREATE INDEX VideoFileByPath ON VideoFile (FilePath);
CREATE INDEX VideoFileByCamera ON VideoFile (CameraID, OccurTime);
CREATE INDEX VideoFileByGroup ON VideoFile (GroupID, OccurTime);

-- One row; an empty table means the defaults.
CREATE TABLE VideoSystemConfigTable (
    DisplayScale                  INTEGER,
    InstantPlaybackTime           INTEGER,
    PlayPerformance               INTEGER,
    EnableToolBar                 INTEGER,
    PlaybackPriority              INTEGER,
    EnableResumePreview           INTEGER,
    EnableAutoChangeStreamType    INTEGER,
    SnapshotPicType               INTEGER,
    EnableHighlightShow           INTEGER,
    EnableATMOSD                  INTEGER,
    EnableRuleShow                INTEGER,
    EnableDisconnectMultiStreams  INTEGER,
    PlaybackDefaultStreamType     INTEGER,
    EnableWheelControlZoom        INTEGER,
    OnlyPlayVCAInVCAPlayBack      INTEGER,
    EnableHardDecode              INTEGER,
    DownloadFileMode              INTEGER,
    StreamOffset                  INTEGER,
    SearchFileCameraMode          INTEGER,
    EnablePlayBackFrameExtraction INTEGER,
    EnableTransactionInfor        INTEGER,
    EnableTargetPattern           INTEGER,
    EnableRenderingEffect         INTEGER,
    VideoFileFormat               INTEGER,
    EnableDenoise                 INTEGER,
    ClockedPreviewToolBar         INTEGER,
    ShowRecordAndAlarmState       INTEGER,
    SearchCloudP2PRecordFileMode  INTEGER
);

-- One row a position of the live-view toolbar.
CREATE TABLE Toolbar (
    uKeyNum                INTEGER,
    bShow                  INTEGER,
    iShowID                INTEGER,
    iRemoteConfigHideFixed INTEGER
);
