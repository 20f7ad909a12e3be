#include "ui/Public/UnavailablePage.h"

#include <QCloseEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace video {

namespace {

constexpr int kPageWidth = 960;
constexpr int kPageHeight = 600;

} // namespace

CUnavailablePage::CUnavailablePage(const QString& title)
{
    setWindowTitle(title);
    resize(kPageWidth, kPageHeight);
    auto* layout = new QVBoxLayout(this);
    auto* heading = new QLabel(title, this);
    heading->setObjectName("pageTitle");
    auto* sentence = new QLabel(tr("This page is not available yet."), this);
    sentence->setObjectName("pageSentence");
    layout->addStretch();
    layout->addWidget(heading, 0, Qt::AlignHCenter);
    layout->addWidget(sentence, 0, Qt::AlignHCenter);
    layout->addStretch();
}

void CUnavailablePage::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

} // namespace video
