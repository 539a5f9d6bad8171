// SPDX-License-Identifier: MIT
#include "tests/app/RunningProgram.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <utility>

namespace fadeloom {
namespace {

std::array<int, 2> makePipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    return ends;
}

void closeOnce(int& descriptor)
{
    if (descriptor != -1)
        close(std::exchange(descriptor, -1));
}

}  // namespace

RunningProgram::RunningProgram(
    const std::vector<std::string>& arguments, const std::map<std::string, std::string>& environment)
{
    std::signal(SIGPIPE, SIG_IGN);
    const auto input = makePipe();
    const auto output = makePipe();
    const auto error = makePipe();
    std::string program = FADELOOM_PROGRAM;
    std::vector<std::string> texts = arguments;
    std::vector<char*> pointers = {program.data()};
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);

    pid_ = fork();
    if (pid_ == 0) {
        for (const auto& [name, value] : environment)
            setenv(name.c_str(), value.c_str(), 1);
        std::signal(SIGPIPE, SIG_DFL);
        dup2(input[0], STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        dup2(error[1], STDERR_FILENO);
        execv(program.c_str(), pointers.data());
        _exit(127);
    }
    close(input[0]);
    close(output[1]);
    close(error[1]);
    input_ = input[1];
    output_ = output[0];
    error_ = error[0];
}

RunningProgram::~RunningProgram()
{
    if (pid_ > 0) {
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
    }
    closeOnce(input_);
    closeOnce(output_);
    closeOnce(error_);
}

void RunningProgram::write(std::string_view text)
{
    if (::write(input_, text.data(), text.size()) != static_cast<ssize_t>(text.size()))
        throw std::runtime_error("the program does not read");
}

void RunningProgram::closeInput()
{
    closeOnce(input_);
}

void RunningProgram::closeOutput()
{
    closeOnce(output_);
}

void RunningProgram::signal(int number) const
{
    kill(pid_, number);
}

void RunningProgram::signalProgram(int number) const
{
    const auto process = std::to_string(pid_);
    pid_t program = pid_;  // Without a guardian they are the same.
    std::ifstream("/proc/" + process + "/task/" + process + "/children") >> program;
    kill(program == 0 ? pid_ : program, number);
}

bool RunningProgram::readMore(int descriptor, std::string& text)
{
    pollfd waited = {.fd = descriptor, .events = POLLIN, .revents = 0};
    if (poll(&waited, 1, static_cast<int>(std::chrono::milliseconds(timeout).count())) != 1)
        return false;
    std::array<char, 4096> bytes{};
    const auto count = read(descriptor, bytes.data(), bytes.size());
    if (count <= 0)
        return false;
    text.append(bytes.data(), static_cast<std::size_t>(count));
    return true;
}

std::optional<std::string> RunningProgram::lineWith(std::string_view beginning)
{
    while (true) {
        for (auto end = unread_.find('\n'); end != std::string::npos; end = unread_.find('\n')) {
            auto line = unread_.substr(0, end);
            unread_.erase(0, end + 1);
            if (line.starts_with(beginning))
                return line;
        }
        if (!readMore(output_, unread_))
            return std::nullopt;
    }
}

int RunningProgram::exitStatus()
{
    // End of its output.
    if (output_ != -1)
        unread_ += restOfOutput();
    if (pid_ != -1 && waitpid(pid_, &status_, 0) != pid_)
        return -1;
    pid_ = -1;
    return WIFEXITED(status_) ? WEXITSTATUS(status_) : -1;
}

bool RunningProgram::endsUnread()
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (std::chrono::steady_clock::now() < deadline) {
        if (waitpid(pid_, &status_, WNOHANG) == pid_) {
            pid_ = -1;
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

std::string RunningProgram::restOfOutput()
{
    auto text = std::exchange(unread_, {});
    while (readMore(output_, text)) { }
    return text;
}

std::string RunningProgram::errorText()
{
    std::string text;
    while (readMore(error_, text)) { }
    return text;
}

}  // namespace fadeloom
