/// The thread tags of the contract.
///
/// Every virtual operation of `host/`, and much else, ends its description with one
/// of these; each header that uses them includes this one:
///
///   [loader]   on the thread that loads or unloads the plug-in, while the
///              operating system's loader serialises.
///   [host]     on a thread that the host chooses; never two calls at once on
///              the same object.
///   [updater]  inside request processing; the host serialises the updates of
///              one object, other objects may be updated at the same time.
///   [reader]   on any number of threads at once, also while an [updater] call
///              runs on the object that owns the data. No lock, no allocation.
///   [any]      on any thread at any time.
#pragma once
