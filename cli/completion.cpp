#include "completion.h"

#include <algorithm>
#include <cctype>

namespace tolmar::cli {

namespace {

struct Token {
  std::string text;
  int group = 0;  // 0 outside brackets, else the number of its bracket
};

// The usage's words with the bracket each stands in; "[", "]", "(", ")" and
// "..." go, a lone "|" between alternatives is dropped.
std::vector<Token> tokens(const std::string& usage) {
  std::vector<Token> out;
  std::vector<int> open;
  int groups = 0;
  std::string word;
  auto flush = [&] {
    if (word.size() >= 3 && word.compare(word.size() - 3, 3, "...") == 0)
      word.resize(word.size() - 3);
    if (!word.empty() && word != "|") out.push_back({word, open.empty() ? 0 : open.back()});
    word.clear();
  };
  for (const char c : usage) {
    if (c == '[' || c == '(') {
      flush();
      open.push_back(++groups);
    } else if (c == ']' || c == ')') {
      flush();
      if (!open.empty()) open.pop_back();
    } else if (std::isspace(static_cast<unsigned char>(c))) {
      flush();
    } else {
      word += c;
    }
  }
  flush();
  return out;
}

bool isOption(const std::string& w) { return w.size() > 2 && w[0] == '-' && w[1] == '-'; }

// "fr|en", "A4|A3|Letter": the choices of a place; a placeholder that the
// user fills in (M3, OUT.png|OUT.svg, SCREEN.CONTROL=VALUE) has none.
std::vector<std::string> choices(const std::string& text) {
  if (text.find('|') == std::string::npos) return {};
  std::vector<std::string> out;
  std::size_t from = 0;
  while (from <= text.size()) {
    const std::size_t bar = std::min(text.find('|', from), text.size());
    out.push_back(text.substr(from, bar - from));
    from = bar + 1;
  }
  const bool words = std::all_of(out.begin(), out.end(), [](const std::string& w) {
    return !w.empty() && std::all_of(w.begin(), w.end(), [](char c) {
      return std::isalnum(static_cast<unsigned char>(c)) || c == '-';
    });
  });
  return words ? out : std::vector<std::string>{};
}

// A file stands where the placeholder has an extension (HULL.D50, OUT.pdf)
// or is OUT or DIR; SCREEN.CONTROL=VALUE is typed, not a file.
bool isFilePlace(const std::string& text) {
  if (text.find('=') != std::string::npos) return false;
  return text.find('.') != std::string::npos || text == "OUT" || text == "DIR";
}

struct Grammar {
  struct Option {
    std::string name;
    std::string value;  // empty for a flag
  };
  std::vector<Option> options;
  std::vector<std::string> positional;
};

const Command* find(const std::vector<Command>& table, const std::string& name) {
  for (const auto& c : table)
    if (c.name == name) return &c;
  return nullptr;
}

Grammar grammar(const std::vector<Command>& table, const Command& c, int depth = 0) {
  Grammar g;
  const std::vector<Token> t = tokens(c.usage);
  for (std::size_t i = 0; i < t.size(); ++i) {
    const Token& k = t[i];
    if (isOption(k.text)) {
      Grammar::Option o{k.text, {}};
      const bool valued =
          k.group != 0 && i + 1 < t.size() && t[i + 1].group == k.group && !isOption(t[i + 1].text);
      if (valued) o.value = t[++i].text;
      g.options.push_back(o);
    } else if (k.group == 0) {
      g.positional.push_back(k.text);
    } else if (k.text == "options" && i + 2 < t.size() && t[i + 1].text == "of" && depth < 4) {
      // "[options of export]": that command's options are this one's too.
      if (const Command* other = find(table, t[i + 2].text)) {
        const Grammar o = grammar(table, *other, depth + 1);
        g.options.insert(g.options.end(), o.options.begin(), o.options.end());
      }
      i += 2;
    }
  }
  return g;
}

void addUnique(std::vector<std::string>& out, const std::string& w) {
  if (std::find(out.begin(), out.end(), w) == out.end()) out.push_back(w);
}

// The words a slot of the usage line may take.
void offerPlace(std::vector<std::string>& out, const Command& c, const std::string& place) {
  if (place == "KIND" && c.kinds) {
    for (std::string k : c.kinds()) {
      // "plank-xyz:N": the number is the user's.
      if (const auto colon = k.find(':'); colon != std::string::npos) k.resize(colon + 1);
      addUnique(out, k);
    }
    return;
  }
  const std::vector<std::string> words = choices(place);
  if (!words.empty()) {
    for (const auto& w : words) addUnique(out, w);
  } else if (isFilePlace(place)) {
    addUnique(out, kFileWord);
  }
}

}  // namespace

std::vector<std::string> completions(const std::vector<Command>& table, const Args& typed) {
  std::vector<std::string> out;
  if (typed.empty()) {
    std::vector<Command> sorted = table;
    std::sort(sorted.begin(), sorted.end(),
              [](const auto& a, const auto& b) { return a.name < b.name; });
    for (const auto& c : sorted) addUnique(out, c.name);
    out.push_back("--help");
    out.push_back("--version");
    return out;
  }
  const Command* c = find(table, typed[0]);
  if (!c) return out;
  const Grammar g = grammar(table, *c);
  std::size_t placed = 0;
  for (std::size_t i = 1; i < typed.size(); ++i) {
    const auto o = std::find_if(g.options.begin(), g.options.end(),
                                [&](const auto& x) { return x.name == typed[i]; });
    if (o != g.options.end() && !o->value.empty()) {
      if (i + 1 == typed.size()) {
        for (const auto& w : choices(o->value)) addUnique(out, w);
        if (out.empty() && isFilePlace(o->value)) out.push_back(kFileWord);
        return out;  // the word being typed is this option's value
      }
      ++i;
    } else if (!typed[i].starts_with("-")) {
      ++placed;
    }
  }
  for (const auto& o : g.options) addUnique(out, o.name);
  addUnique(out, "--help");
  if (placed < g.positional.size()) offerPlace(out, *c, g.positional[placed]);
  return out;
}

}  // namespace tolmar::cli
