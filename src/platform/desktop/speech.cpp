#include "platform/desktop/speech.h"

#include "platform/desktop/speech_library.h"

#include <SDL2/SDL_timer.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

namespace platform {

namespace {

// A voice that reports no end is believed for this long a line, and for each byte of it: a slow reader.
constexpr std::int64_t kLineTime = 1500;  // ms
constexpr std::int64_t kByteTime = 90;    // ms
// After this the library is taken to hang on a dispatcher that died, and a new thread begins anew.
constexpr std::int64_t kPatience = 3000;  // ms
// A dispatcher that is not there is looked for again, but not with every line.
constexpr auto kLooksAgain = std::chrono::milliseconds(500);
constexpr auto kLeaving = std::chrono::milliseconds(300);

std::int64_t Now()
{
    return static_cast<std::int64_t>(SDL_GetTicks64());
}

}  // namespace

// What the player's thread wants of the other.
struct Speech::Job {
    enum class Kind { Say, Silence, Rate, Leave };

    Kind kind = Kind::Say;
    std::uint64_t number = 0;  // of what is said
    std::vector<std::string> lines{};
    bool interrupt = false;
    int rate = 0;
};

// Between the threads. Both hold it, so that either may be gone.
struct Speech::Shared {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Job> jobs;
    bool left = false;
    std::int64_t busySince = 0;  // 0: idle

    std::atomic<std::uint64_t> over{0};  // the last job whose lines are all said or dropped
    std::atomic<bool> trouble{false};
    std::function<void()> wake;
};

namespace {

// Who hears the library's calls: they carry no pointer of ours, and there is one voice in a program.
std::mutex earMutex;
std::function<void(std::size_t)> ear;

void MessageOver(std::size_t message, std::size_t /*client*/, int /*state*/)
{
    const std::lock_guard lock(earMutex);
    if (ear) {
        ear(message);
    }
}

// Signals belong to the program's first thread; a write to a dead dispatcher must not end the game.
void BlockSignals()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

}  // namespace

class Speech::Worker {
public:
    explicit Worker(std::shared_ptr<Shared> shared) : shared_(std::move(shared)) {}

    void Run()
    {
        BlockSignals();
        for (bool leave = false; !leave;) {
            Job job = Take();
            leave = job.kind == Job::Kind::Leave;
            Do(job);
            Done(leave);
        }
    }

private:
    Job Take()
    {
        std::unique_lock lock(shared_->mutex);
        shared_->changed.wait(lock, [this] { return !shared_->jobs.empty(); });
        Job job = std::move(shared_->jobs.front());
        shared_->jobs.pop_front();
        shared_->busySince = Now();
        return job;
    }

    void Done(bool leave)
    {
        const std::lock_guard lock(shared_->mutex);
        shared_->busySince = 0;
        shared_->left = leave;
        shared_->changed.notify_all();
    }

    void Do(const Job& job)
    {
        switch (job.kind) {
        case Job::Kind::Say:
            SayAll(job);
            break;
        case Job::Kind::Silence:
            Cancel();
            break;
        case Job::Kind::Rate:
            rate_ = job.rate;
            if (connection_ != nullptr && library_->rate(connection_, *rate_) != 0) {
                Close();
            }
            break;
        case Job::Kind::Leave:
            Close();
        }
    }

    void SayAll(const Job& job)
    {
        if (job.interrupt) {
            Cancel();
        }
        {
            const std::lock_guard lock(earMutex);
            number_ = job.number;
            sending_ = true;
        }
        bool said = true;
        for (const std::string& line : job.lines) {
            said = said && SayLine(line);
        }
        const std::lock_guard lock(earMutex);
        sending_ = false;
        if (!said || ended_ >= last_) {
            Over();
        }
    }

    // Once more on a new connection, when the dispatcher has died since the last line.
    bool SayLine(const std::string& line)
    {
        for (int attempt = 0; attempt < 2 && Open(); ++attempt) {
            if (const int message = library_->say(connection_, SpeechLibrary::kMessage, line.c_str());
                message > 0) {
                const std::lock_guard lock(earMutex);
                last_ = static_cast<std::size_t>(message);
                return true;
            }
            Close();
        }
        return false;
    }

    // Called by the library, under earMutex.
    void Ended(std::size_t message)
    {
        ended_ = std::max(ended_, message);
        if (!sending_ && ended_ >= last_) {
            Over();
        }
    }

    void Over()
    {
        shared_->over = number_;
        shared_->wake();
    }

    void Cancel()
    {
        if (connection_ != nullptr && library_->cancel(connection_) != 0) {
            Close();
        }
    }

    bool Open()
    {
        const auto now = std::chrono::steady_clock::now();
        if (connection_ != nullptr || now < retryAt_) {
            return connection_ != nullptr;
        }
        library_ = LoadSpeechLibrary();
        if (library_ != nullptr) {
            // Who names a dispatcher of his own starts it himself.
            const int autospawn = std::getenv("SPEECHD_ADDRESS") == nullptr ? 1 : 0;
            char* error = nullptr;
            connection_ = library_->open("quenvale", "narration", nullptr, SpeechLibrary::kThreaded, nullptr,
                                         autospawn, &error);
            std::free(error);
        }
        if (connection_ == nullptr) {
            retryAt_ = now + kLooksAgain;
            shared_->trouble = !std::exchange(troubled_, true);
            shared_->wake();
            return false;
        }
        troubled_ = false;
        SetUp();
        return true;
    }

    void SetUp()
    {
        {
            const std::lock_guard lock(earMutex);
            last_ = 0;
            ended_ = 0;
            ear = [this](std::size_t message) { Ended(message); };
        }
        connection_->end = MessageOver;
        connection_->cancel = MessageOver;
        library_->notify(connection_, SpeechLibrary::kEnd);
        library_->notify(connection_, SpeechLibrary::kCancel);
        library_->language(connection_, "en");  // as the game's texts are
        if (rate_) {
            library_->rate(connection_, *rate_);
        }
    }

    void Close()
    {
        {
            const std::lock_guard lock(earMutex);
            ear = {};
        }
        if (connection_ != nullptr) {
            library_->close(std::exchange(connection_, nullptr));
        }
    }

    std::shared_ptr<Shared> shared_;
    const SpeechLibrary* library_ = nullptr;
    SpeechLibrary::Connection* connection_ = nullptr;
    std::optional<int> rate_;
    // Under earMutex: the job that is said, the last message given to the dispatcher, the last that ended.
    std::uint64_t number_ = 0;
    bool sending_ = false;
    std::size_t last_ = 0;
    std::size_t ended_ = 0;
    bool troubled_ = false;
    std::chrono::steady_clock::time_point retryAt_{};
};

Speech::Speech(std::function<void()> wake) : wake_(std::move(wake)) {}

Speech::~Speech()
{
    if (shared_ == nullptr) {
        return;
    }
    Job leave;
    leave.kind = Job::Kind::Leave;
    Give(std::move(leave));
    std::unique_lock lock(shared_->mutex);
    shared_->changed.wait_for(lock, kLeaving, [this] { return shared_->left; });
}

// A thread that hangs in the library is left to itself.
void Speech::Give(Job job)
{
    if (shared_ != nullptr) {
        const std::lock_guard lock(shared_->mutex);
        if (shared_->busySince == 0 || Now() - shared_->busySince < kPatience) {
            shared_->jobs.push_back(std::move(job));
            shared_->changed.notify_all();
            return;
        }
    }
    if (job.kind == Job::Kind::Leave) {
        return;
    }
    shared_ = std::make_shared<Shared>();
    shared_->wake = wake_;
    shared_->over = said_ - 1;
    if (rate_ != 0) {
        Job rate;
        rate.kind = Job::Kind::Rate;
        rate.rate = rate_;
        shared_->jobs.push_back(std::move(rate));
    }
    shared_->jobs.push_back(std::move(job));
    std::thread([shared = shared_] { Worker(shared).Run(); }).detach();
}

void Speech::Say(const std::vector<std::string>& lines, bool interrupt)
{
    const std::int64_t now = Now();
    std::int64_t time = 0;
    for (const std::string& line : lines) {
        time += kLineTime + kByteTime * static_cast<std::int64_t>(line.size());
    }
    believedUntil_ = (interrupt || !Speaking(now) ? now : believedUntil_) + time;
    Job job;
    job.number = ++said_;
    job.lines = lines;
    job.interrupt = interrupt;
    Give(std::move(job));
}

void Speech::Silence()
{
    believedUntil_ = 0;
    if (shared_ != nullptr) {
        Job job;
        job.kind = Job::Kind::Silence;
        Give(std::move(job));
    }
}

void Speech::SetRate(int rate)
{
    rate_ = rate;
    if (shared_ != nullptr) {
        Job job;
        job.kind = Job::Kind::Rate;
        job.rate = rate;
        Give(std::move(job));
    }
}

bool Speech::Speaking(std::int64_t now) const
{
    return shared_ != nullptr && now < believedUntil_ && shared_->over < said_;
}

std::optional<std::int64_t> Speech::NextDue() const
{
    return Speaking(Now()) ? std::optional(believedUntil_) : std::nullopt;
}

bool Speech::TakeTrouble()
{
    return shared_ != nullptr && shared_->trouble.exchange(false);
}

}  // namespace platform
