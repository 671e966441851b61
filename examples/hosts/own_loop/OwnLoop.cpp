#include <examples/hosts/scene/MovingScene.h>

#include <nodescope/entry/EntryFunctions.h>
#include <vexel/actions/SoOffscreenRenderArea.h>
#include <vexel/io/SoDB.h>
#include <vexel/nodes/SoSeparator.h>
#include <vexel/sensors/SoSensorManager.h>
#include <vexel/viewer/SoSceneManager.h>

#include <QImage>

#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>

// Draws a changing scene off screen in a loop of its own, and has it inspected.

namespace {

constexpr auto Turn = std::chrono::milliseconds(10);
constexpr int Turns_between_changes = 25;
constexpr int Turns_between_pictures = 100;
constexpr int Turns_alone = 50;

/** What the program is there for; counts its turns. */
class Work {
public:
    Work()
    {
        m_picture->ref();
        m_picture->setViewportRegion(SbViewportRegion(160, 120));
        m_picture->setSceneGraph(m_scene.root());
        m_sceneManager.setSceneGraph(m_scene.root());
    }
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;
    ~Work() { m_picture->unref(); }

    SoSceneManager* sceneManager() { return &m_sceneManager; }
    int numTurns() const { return m_numTurns; }

    void doTurn()
    {
        SoSensorManager& sensors = SoDB::getSensorManager();
        sensors.processTimerQueue();
        sensors.processDelayQueue(true);
        if (m_numTurns % Turns_between_changes == 0)
            m_scene.step();
        if (m_numTurns % Turns_between_pictures == 0)
            m_picture->render();
        ++m_numTurns;
        std::this_thread::sleep_for(Turn);
    }

private:
    MovingScene m_scene;
    SoSceneManager m_sceneManager;
    SoOffscreenRenderArea* m_picture = new SoOffscreenRenderArea;
    int m_numTurns = 0;
};

/** Says at once what happened, also to a reader behind a pipe. */
void report(const char* what, int round, int turns)
{
    std::printf("round %d, turn %d: %s\n", round, turns, what);
    std::fflush(stdout);
}

// [loop]
void doRound(Work& work, int round)
{
    _startSceneManager(work.sceneManager(), nullptr);
    report("the inspector is open", round, work.numTurns());
    while (_processEvents())
        work.doTurn();
    report("the inspector was quit", round, work.numTurns());
    for (int turn = 0; turn < Turns_alone; ++turn)
        work.doTurn();
}
// [end]

int numRounds(int argc, char** argv)
{
    int rounds = argc == 1 ? 1 : 0;
    if (argc == 3 && std::strcmp(argv[1], "--rounds") == 0)
        std::from_chars(argv[2], argv[2] + std::strlen(argv[2]), rounds);
    return rounds;
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = numRounds(argc, argv);
    if (rounds < 1) {
        std::fputs("usage: host_own_loop [--rounds N]\n", stderr);
        return 2;
    }
    SoDB::init();
    Work work;
    for (int round = 1; round <= rounds; ++round)
        doRound(work, round);
    report("done", rounds, work.numTurns());
    return 0;
}
