// The access key that a label marks for the text box behind it.
#pragma once

#include "platform/window.h"

#include <algorithm>

namespace cserko {

/// The text box that a label stands in front of, null for any other element. A mark in the caption of such a label is
/// that of an access key; elsewhere a label shows its caption as it is, since words of the child stand there.
inline TextBox* box_behind(const Element& element) {
  if (element.kind() != ElementKind::Label || element.Caption.find(u'&') == Text::npos) return nullptr;
  const std::vector<Element*>& all = element.window().elements();
  auto next = std::find(all.begin(), all.end(), &element);
  if (next == all.end() || ++next == all.end() || (*next)->kind() != ElementKind::TextBox) return nullptr;
  return static_cast<TextBox*>(*next);
}

} // namespace cserko
