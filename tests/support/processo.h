// A piece of work in a process of its own, for tests in which it ends the process halfway.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

namespace bor {

/// Runs `lavoro` in a process of its own; its exit code.
template <class Lavoro>
int inProcesso(Lavoro lavoro) {
    const pid_t figlio = ::fork();
    if (figlio == 0) {
        lavoro();
        ::_exit(0);
    }
    int stato = 0;
    ::waitpid(figlio, &stato, 0);
    return WEXITSTATUS(stato);
}

} // namespace bor
