// Measures the resource tree: filling, expanding and painting it, and a keystroke in its search field, beside
// a tree of Qt's standard items in the same look on the same screen.

#include "Bare.h"
#include "support/Samples.h"

#include "UiDataController/Tree/ResourceTree.h"
#include "UiDataController/Tree/ResourceTreeView.h"
#include "UiDataController/Tree/Samples/SampleElements.h"
#include "VantorGUIToolkit/SkinLoader.h"
#include "VantorGUIToolkit/Toolkit.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace UiDataController;
using bench::CSamples;
using Clock = CSamples::Clock;

constexpr const char* kGroup = "tree";
constexpr int kChannelsEach = 16;
constexpr int kSizes[] = {100, 1000, 10000};
/// Typed letter by letter, and taken back the same way. The first letter leaves most rows, the last few.
constexpr const char* kTyped = "entrance 81";

/// A window that is on the screen all the time; what is measured is made within it.
class CStage
{
public:
    CStage()
    {
        m_window.resize(420, 960);
        new QVBoxLayout(&m_window);
        m_window.show();
        QApplication::processEvents();
    }

    /// Shows a widget that was made with Window() as its parent, expanded.
    void Show(QWidget* widget, QTreeView* view)
    {
        m_window.layout()->addWidget(widget);
        widget->show();
        view->expandAll();
        Paint();
    }

    void Paint()
    {
        QApplication::processEvents();
        m_window.repaint();
    }

    QWidget* Window() { return &m_window; }

private:
    QWidget m_window;
};

void Press(QWidget* field, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(field, &press);
}

/// The times of all keystrokes of one round of typing and taking back.
void Type(CStage& stage, QLineEdit* field, CSamples& times)
{
    const QString typed(kTyped);
    for (int at = 0; at < 2 * typed.size(); ++at) {
        const bool isTyping = at < typed.size();
        const auto start = Clock::now();
        if (isTyping)
            Press(field, Qt::Key_A, typed.mid(at, 1));
        else
            Press(field, Qt::Key_Backspace, {});
        stage.Paint();
        times.Add(Clock::now() - start);
    }
}

/// Ends the program unless every row is laid out, without which the times would say nothing.
void CheckRows(const QTreeView* view, int channels)
{
    int rows = 0;
    for (QModelIndex row = view->model()->index(0, 0); row.isValid(); row = view->indexBelow(row))
        ++rows;
    if (rows == channels + (channels + kChannelsEach - 1) / kChannelsEach)
        return;
    std::fprintf(stderr, "a tree of %d channels shows %d rows\n", channels, rows);
    std::exit(1);
}

/// The times of both sides.
struct Pair
{
    explicit Pair(std::size_t calls) : ours(calls), bare(calls) {}

    void Print(const std::string& name, int size)
    {
        ours.Print(kGroup, name, std::size_t(size));
        bare.Print(kGroup, "bare-" + name, std::size_t(size));
        std::printf("# %s: %.2f x bare\n", name.c_str(), ours.Median() / bare.Median());
    }

    CSamples ours;
    CSamples bare;
};

void FillOnce(CStage& stage, CSampleElements& source, Pair& times)
{
    auto start = Clock::now();
    auto* tree = new CResourceTree(source, ResourceOrder::ByDevice, stage.Window());
    stage.Show(tree, tree->View());
    times.ours.Add(Clock::now() - start);
    delete tree;
    const auto elements = source.Snapshot().elements;
    start = Clock::now();
    auto* bare = new bench::CBareTree(elements, stage.Window());
    stage.Show(bare, bare->View());
    times.bare.Add(Clock::now() - start);
    delete bare;
}

/// The median of our side in microseconds.
double MeasureFill(CStage& stage, int channels, std::size_t rounds)
{
    CSampleElements source(manyElements(channels, kChannelsEach));
    Pair unmeasured(1);
    FillOnce(stage, source, unmeasured);
    Pair times(rounds);
    for (std::size_t round = 0; round < rounds; ++round)
        FillOnce(stage, source, times);
    times.Print("fill", channels);
    return times.ours.Median();
}

void MeasureFilter(CStage& stage, int channels, std::size_t rounds)
{
    CSampleElements source(manyElements(channels, kChannelsEach));
    Pair times(rounds * 2 * std::strlen(kTyped));
    auto* tree = new CResourceTree(source, ResourceOrder::ByDevice, stage.Window());
    stage.Show(tree, tree->View());
    CheckRows(tree->View(), channels);
    for (std::size_t round = 0; round < rounds; ++round)
        Type(stage, tree->findChild<QLineEdit*>("resourceSearch"), times.ours);
    delete tree;
    auto* bare = new bench::CBareTree(source.Snapshot().elements, stage.Window());
    stage.Show(bare, bare->View());
    CheckRows(bare->View(), channels);
    for (std::size_t round = 0; round < rounds; ++round)
        Type(stage, bare->Search(), times.bare);
    delete bare;
    times.Print("filter", channels);
}

void Measure(bool isQuick)
{
    CStage stage;
    std::vector<double> each;
    for (const int size : kSizes)
        each.push_back(MeasureFill(stage, size, isQuick ? 5 : 15) / size);
    std::printf("# fill: an item of 10000 costs %.2f x one of 1000 (target 1.5); 10000 within 250 ms\n",
                each[2] / each[1]);
    for (const int size : kSizes)
        MeasureFilter(stage, size, isQuick ? 1 : 4);
    std::printf("# filter: target 16 ms a keystroke\n");
}

} // namespace

/// --quick makes a third of the rounds.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::addLibraryPath(QDir::cleanPath(QApplication::applicationDirPath() + "/../plugins"));
    if (!VantorGUIToolkit::takeLook(VantorGUIToolkit::toolkit(), "BlackRedSkin", VantorGUIToolkit::English))
        return 1;
    Measure(argc > 1 && std::strcmp(argv[1], "--quick") == 0);
    return 0;
}
