#pragma once

#include "framework/ui/tour/TourSteps.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QStringList>
#include <QTimer>

namespace framework {

/// Walks through every tab as a person would, with a picture of the screen and a line on standard output for
/// each step. GUI thread.
class CTour : public QObject
{
    Q_OBJECT

public:
    /// folder: where the pictures go; made when missing.
    CTour(TourStage stage, QString folder);

    void Start();

signals:
    /// success: whether every step worked.
    void Finished(bool success);

private:
    void NextStep();
    void Look();
    void TakePicture();
    bool IsBlank(const QImage& screen) const;
    void CountPages();
    void EndStep(const QString& problem);
    void EndEarly(const QString& problem);
    void Summarise();

    const TourStage m_stage;
    const QString m_folder;
    std::vector<TourStep> m_steps;
    std::size_t m_at = 0;
    QTimer m_poll;
    QElapsedTimer m_sinceBegin;
    QElapsedTimer m_sinceReady;
    QImage m_picture;
    int m_failed = 0;
    QStringList m_seen;         ///< the component's pages that were embedded
    QStringList m_notAvailable; ///< those of them that only say that they do not exist yet
};

} // namespace framework
