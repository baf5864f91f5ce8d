/// Texts, numbers and pictures as parts of a page.
#pragma once

#include <string>
#include <string_view>

#include "workbench/picture/Image.hpp"

namespace workbench {

/// The text as it stands between tags and between double quotes of attributes.
/// Control characters other than line ends and tabs, which a page cannot hold,
/// become the replacement character; the bytes of other letters pass unchanged.
std::string escapeHtml(std::string_view text);

/// `<tag attributes>content</tag>`; the content is HTML already, and so are the
/// attributes, such as `class="key"`.
std::string element(std::string_view tag, std::string_view attributes, std::string_view content);

/// A number for people, with up to four digits: "0.25", "−1.5", "6.45 × 10⁶".
std::string readable(double value);

/// The picture as an address that holds all its bytes.
std::string dataUri(Image const& image);

/// RFC 4648, with padding.
std::string base64(std::string_view bytes);

}  // namespace workbench
