// Finding queries by name, and what is said of wrong questions.
#include "host/ask.h"

#include <map>

#include "host/argument_words.h"
#include "host/format.h"
#include "host/nearest.h"
#include "host/queries.h"

namespace sysctx {
namespace {

std::string Join(const std::vector<std::string>& words, const char* between) {
  std::string text;
  for (const std::string& word : words) {
    text += (text.empty() ? "" : between) + word;
  }
  return text;
}

std::vector<std::string> QueryNames() {
  std::vector<std::string> names;
  for (const QueryFamily& family : AllQueries()) {
    for (const Query& query : family.queries) {
      names.emplace_back(query.name);
    }
  }
  return names;
}

const Query& FindQuery(const std::string& name) {
  for (const QueryFamily& family : AllQueries()) {
    for (const Query& query : family.queries) {
      if (query.name == name) {
        return query;
      }
    }
  }
  const std::vector<std::string> nearest = NearestNames(name, QueryNames());
  throw BadQuestion(Format("unknown query '%s'\n%s", name.c_str(),
                           nearest.empty()
                               ? "\"sysctx ask\" lists all queries\n"
                               : ("did you mean " + Join(nearest, ", ") + "?\n").c_str()));
}

std::vector<Parameter> Inputs(const Query& query) {
  std::vector<Parameter> inputs;
  for (const Parameter& parameter : query.parameters) {
    if (parameter.is_input) {
      inputs.push_back(parameter);
    }
  }
  return inputs;
}

// The query as it is typed.
std::string DescribeCall(const Query& query) {
  std::string text = query.name;
  for (const Parameter& input : Inputs(query)) {
    text += std::string(" ") + input.name;
  }
  return text;
}

// What is to be given for arguments that are neither numbers nor texts.
std::map<std::string, std::string> Hints(const Query& query) {
  std::map<std::string, std::string> hints;
  for (const Parameter& input : Inputs(query)) {
    if (input.hint != nullptr) {
      hints[input.name] = input.hint;
    }
  }
  return hints;
}

std::string DescribeHints(const std::map<std::string, std::string>& hints) {
  std::string text;
  for (const auto& [name, hint] : hints) {
    text += name + ": " + hint + "\n";
  }
  return text;
}

std::string DescribeUsage(const Query& query) {
  return "usage: sysctx ask " + DescribeCall(query) + "\n" + DescribeHints(Hints(query));
}

[[noreturn]] void ThrowWithUsage(const Query& query, const BadArgument& error) {
  throw BadQuestion(std::string(error.what()) + "\n" + DescribeUsage(query));
}

}  // namespace

Question PrepareQuestion(const Words& words) {
  const Query& query = FindQuery(words.at(0));
  const Words arguments(words.begin() + 1, words.end());
  const size_t wanted = Inputs(query).size();
  if (arguments.size() != wanted) {
    throw BadQuestion(Format("%s takes %zu argument%s, not %zu\n%s", query.name, wanted,
                             wanted == 1 ? "" : "s", arguments.size(),
                             DescribeUsage(query).c_str()));
  }
  try {
    return [&query, question = query.prepare(arguments)] {
      try {
        return question();
      } catch (const BadArgument& error) {
        ThrowWithUsage(query, error);
      }
    };
  } catch (const BadArgument& error) {
    ThrowWithUsage(query, error);
  }
}

std::string DescribeQueries() {
  std::string text = "sysctx ask QUERY ARGUMENT ... calls one of these:\n";
  std::map<std::string, std::string> hints;
  for (const QueryFamily& family : AllQueries()) {
    text += Format("\n%s:\n", family.name);
    for (const Query& query : family.queries) {
      text += "  " + DescribeCall(query) + "\n";
      hints.merge(Hints(query));
    }
  }
  return text +
         "\nNumbers are decimal, or hexadecimal behind 0x, and at most 4294967295;"
         " signed ones may be negative.\n" +
         DescribeHints(hints);
}

}  // namespace sysctx
