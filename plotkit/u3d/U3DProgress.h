#pragma once

#include <cstddef>
#include <functional>

/** How far the work on the shapes of a graph is, and whether it goes on. */
class U3DProgress {
public:
    /** How much is done, from 0 to 1; answering false ends the work. */
    using Callback = std::function<bool(double part)>;

    /** Without a callback the work goes on to its end. */
    U3DProgress(Callback callback, std::size_t numShapes);

    /**
     * Tells now and then how much of the present shape is done.
     * @param done  of @p all triangles or lines, one more at each call
     * @param begin, end  what part of the work on the shape these are
     * @return false when the work has to end
     */
    bool goesOn(std::size_t done, std::size_t all, double begin, double end)
    {
        return (done + 1) % Interval != 0 || tell(begin + (end - begin) * double(done) / double(all));
    }
    /** Tells that the present shape is done. */
    bool finishShape();
    bool isCanceled() const { return m_isCanceled; }

private:
    static constexpr std::size_t Interval = 1 << 15;

    bool tell(double partOfShape);

    Callback m_callback;
    std::size_t m_numShapes;
    std::size_t m_done = 0;
    bool m_isCanceled = false;
};
