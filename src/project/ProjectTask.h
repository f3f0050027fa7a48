#pragma once
// Save, load and the switch of working sets let pending window events run at their named points.
// An event that starts one of them again (a second click on the disk button, a close) must not
// run it inside the first, or two saves interleave and leave two records. One task runs at a
// time in the process; a second one is refused while the first holds its ProjectTask.

namespace orvanta {

class ProjectTask {
public:
    ProjectTask() : running_(!busy_) { busy_ = true; }
    ~ProjectTask() {
        if (running_) busy_ = false;
    }
    ProjectTask(const ProjectTask&) = delete;
    ProjectTask& operator=(const ProjectTask&) = delete;

    // False when another task was running already: this one must do nothing.
    bool running() const { return running_; }
    // Whether a save, load or switch runs now, somewhere further down the stack.
    static bool anyRunning() { return busy_; }

private:
    inline static bool busy_ = false;
    bool running_;
};

}  // namespace orvanta
