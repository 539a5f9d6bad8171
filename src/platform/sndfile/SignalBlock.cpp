// SPDX-License-Identifier: MIT
#include "platform/sndfile/SignalBlock.h"

#include <ctime>

namespace fadeloom {

SignalBlock::SignalBlock()
{
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &former_);
}

SignalBlock::~SignalBlock()
{
    // A pending one would be delivered on unblocking.
    sigset_t fileTooLarge;
    sigemptyset(&fileTooLarge);
    sigaddset(&fileTooLarge, SIGXFSZ);
    const timespec atOnce{};
    sigtimedwait(&fileTooLarge, nullptr, &atOnce);
    pthread_sigmask(SIG_SETMASK, &former_, nullptr);
}

}  // namespace fadeloom
