// Times a program from its start to its end, some runs in a row.
//
//     ProcessTimer RUNS INPUT SPOOL PROGRAM ARGUMENT...
//
// Each run gets the file INPUT as standard input. Files in SPOOL that are not empty are removed before each run, so
// that every run meets the same spool. Prints a line for each run: wall time in nanoseconds, a blank, and the most
// memory that was resident, in bytes.
//
// A general timer puts a shell between itself and the program in order to redirect its input, and a start of either
// costs as much as the program. The system also counts what the parent had resident when the child started as the
// child's: a large parent, such as an interpreter, would hide a small child. This one is small.

#define _GNU_SOURCE

#include <dirent.h>
#include <fcntl.h>
#include <stdio.h>
#include <stdlib.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

static void fail(const char* what) {
    perror(what);
    exit(1);
}

static void removeSignals(const char* spool) {
    DIR* listing = opendir(spool);
    if (listing == NULL) fail(spool);
    const struct dirent* entry = NULL;
    while ((entry = readdir(listing)) != NULL) {
        struct stat status;
        if (fstatat(dirfd(listing), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0) fail(entry->d_name);
        if (S_ISREG(status.st_mode) && status.st_size > 0) unlinkat(dirfd(listing), entry->d_name, 0);
    }
    closedir(listing);
}

static long long nanoseconds(void) {
    struct timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

static void run(const char* input, char** command) {
    const int payload = open(input, O_RDONLY | O_CLOEXEC);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (payload < 0 || nowhere < 0) fail(input);

    const long long start = nanoseconds();
    const pid_t child = vfork();
    if (child == 0) {
        dup2(payload, STDIN_FILENO);
        dup2(nowhere, STDOUT_FILENO);
        execv(command[0], command);
        _exit(127);
    }
    int status = 0;
    struct rusage usage;
    if (child < 0 || wait4(child, &status, 0, &usage) != child) fail("wait4");
    const long long wall = nanoseconds() - start;

    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        fprintf(stderr, "%s: ended with status %d\n", command[0], status);
        exit(1);
    }
    printf("%lld %ld\n", wall, usage.ru_maxrss * 1024);
    close(payload);
    close(nowhere);
}

int main(int argumentCount, char** arguments) {
    if (argumentCount < 5) return 2;
    for (long left = strtol(arguments[1], NULL, 10); left > 0; --left) {
        removeSignals(arguments[3]);
        run(arguments[2], arguments + 4);
    }
    return 0;
}
