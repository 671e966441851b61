#pragma once

class SoGroup;
class SoSeparator;

/** A block that turns and changes its colour, and balls above it that come and go; all of them are there at first. */
class MovingScene {
public:
    MovingScene();
    MovingScene(const MovingScene&) = delete;
    MovingScene& operator=(const MovingScene&) = delete;
    ~MovingScene();

    SoSeparator* root() const { return m_root; }
    int numBalls() const;

    static constexpr int Most_balls = 5;
    /** One ball less, down to none, then one more at a time, and so on. */
    void step();

private:
    SoSeparator* m_root;
    SoGroup* m_balls;
    bool m_grows = true;
};
