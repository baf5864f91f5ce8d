/// What the host's diagnostics print.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "runtime/lattice/Diagnostics.hpp"

namespace tests {

/// Catches what `Vprintf` prints at a verbosity, from its construction to its
/// destruction; then the former verbosity and standard output hold again.
class DiagnosticText {
public:
    explicit DiagnosticText(int verbosity) : former_(Orlo::verbosity()), file_(std::tmpfile()) {
        Orlo::setVerbosity(verbosity);
        Orlo::setDiagnosticOutput(file_);
    }
    DiagnosticText(DiagnosticText const&) = delete;
    DiagnosticText& operator=(DiagnosticText const&) = delete;
    ~DiagnosticText() {
        Orlo::setDiagnosticOutput(nullptr);
        Orlo::setVerbosity(former_);
        std::fclose(file_);
    }

    /// Everything printed so far.
    std::string text() const {
        std::string all;
        std::fflush(file_);
        std::rewind(file_);
        for (int c = std::fgetc(file_); c != EOF; c = std::fgetc(file_))
            all += static_cast<char>(c);
        std::fseek(file_, 0, SEEK_END);
        return all;
    }

    /// The same, line by line.
    std::vector<std::string> lines() const {
        std::vector<std::string> found;
        std::string const all = text();
        for (std::size_t start = 0; start < all.size();) {
            std::size_t const end = all.find('\n', start);
            found.push_back(all.substr(start, end - start));
            start = end == std::string::npos ? all.size() : end + 1;
        }
        return found;
    }

private:
    int former_;
    std::FILE* file_;
};

}  // namespace tests
