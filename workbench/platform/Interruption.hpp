/// Ends that are asked for from outside.
#pragma once

namespace workbench {

/// While it lives, Ctrl-C and a request to end do not end the program at once, so
/// that work can be put away; and a file that grows beyond its limit is an error
/// of writing. The destructor lets the program end as it was asked to. A second
/// request ends it at once. One object at a time.
class Interruption {
public:
    Interruption();
    Interruption(Interruption const&) = delete;
    Interruption& operator=(Interruption const&) = delete;
    ~Interruption();

    /// Throws `WorkError` if the program was asked to end.
    static void check();

    /// Whether the program was asked to end.
    static bool isRequested();
    /// Takes the request as answered: whoever ends by it ends as planned.
    static void answer();
};

}  // namespace workbench
