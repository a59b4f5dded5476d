#pragma once

/// Makes time on the thread of this object a number that only waiting changes. While the object lives, the clock of
/// timers stands still; a wait of the event loop takes no real time, and the clock is what it would be at its end. So
/// timers fire in the order of their times, and after the same events, however busy the machine is. A sleep takes its
/// real time as well, because it may wait for another thread, whose clock stays real.
///
/// Afterwards the clock goes on from where it was. One at a time; not for a display, whose answers need real time.
class VirtualTime {
public:
    VirtualTime();
    ~VirtualTime();
    VirtualTime(VirtualTime const&) = delete;
    VirtualTime& operator=(VirtualTime const&) = delete;

    /// Moves the clock of the thread forward, at once. Does nothing while no object lives.
    static void advance(int milliseconds);
    /// Lets real time pass, in which another thread works, and none on the clock.
    static void waitForThreads(int milliseconds);
    /// Whether an object lives on this thread.
    static bool isRunning();
};
