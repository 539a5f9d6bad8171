// SPDX-License-Identifier: MIT
#include "base/FileError.h"

namespace fadeloom {
namespace {

const char* words(FileError::Step step)
{
    using Step = FileError::Step;
    switch (step) {
    case Step::read:
        return "Cannot read";
    case Step::follow:
        return "Cannot follow";
    case Step::replace:
        return "Cannot replace";
    case Step::createBeside:
        return "Cannot create a file beside";
    case Step::write:
        return "Cannot write";
    case Step::createFolder:
        return "Cannot create the folder";
    case Step::remove:
        return "Cannot remove";
    }
    return "Cannot use";
}

}  // namespace

std::string FileError::description() const
{
    return std::string(words(step)) + " " + file.string() + ": " + reason.message();
}

}  // namespace fadeloom
