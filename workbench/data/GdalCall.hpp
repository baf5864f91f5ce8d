/// Calls of GDAL: what they complain of, and what is theirs to close.
#pragma once

#include <cpl_error.h>
#include <gdal.h>

#include <exception>
#include <memory>
#include <string>

#include "workbench/common/errors.hpp"
#include "workbench/common/inQuotes.hpp"
#include "workbench/data/DataGrid.hpp"

namespace workbench {

/// Keeps GDAL's own lines off standard error while it lives, and the first
/// failure that they tell. Threads: for the thread that makes it.
class Complaints {
public:
    Complaints() { CPLPushErrorHandlerEx(take, this); }
    Complaints(Complaints const&) = delete;
    Complaints& operator=(Complaints const&) = delete;
    ~Complaints() { CPLPopErrorHandler(); }

    bool failed() const { return failed_; }
    std::string text() const { return text_.empty() ? "GDAL gives no reason" : text_; }

private:
    static void CPL_STDCALL take(CPLErr level, CPLErrorNum, char const* message) {
        auto& self = *static_cast<Complaints*>(CPLGetErrorHandlerUserData());
        if (level < CE_Failure || self.failed_)
            return;
        self.failed_ = true;
        self.text_ = message;
    }

    bool failed_ = false;
    std::string text_;
};

/// Carries an exception through GDAL, which knows none: the call is told to fail,
/// and the exception goes on when it has returned.
class Passage {
public:
    explicit Passage(Progressing progress) : progress_(std::move(progress)) {}

    /// Whether the work went without an exception.
    template <class Work>
    bool through(Work const& work) noexcept {
        if (!caught_)
            try {
                work();
            } catch (...) {
                caught_ = std::current_exception();
            }
        return !caught_;
    }

    void goOn() const {
        if (caught_)
            std::rethrow_exception(caught_);
    }

    /// For GDAL, with the passage as its argument.
    static int CPL_STDCALL progress(double part, char const*, void* passage) {
        auto& self = *static_cast<Passage*>(passage);
        return self.through([&] {
            if (self.progress_)
                self.progress_(part);
        })
                   ? TRUE
                   : FALSE;
    }

private:
    Progressing progress_;
    std::exception_ptr caught_;
};

struct Closer {
    void operator()(void* dataset) const noexcept { GDALClose(dataset); }
};
using Dataset = std::unique_ptr<void, Closer>;

}  // namespace workbench
