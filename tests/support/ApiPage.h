#pragma once

#include <string>
#include <vector>

/// docs/lpc-api.md, as far as a machine reads it.
struct ApiPage
{
    /// One line of a table: | `key` | kind | must | meaning |
    struct Row
    {
        std::string key;
        std::string kind;
        std::string must;
    };

    /// A table behind a line that begins **Body** "message", **Data** "message" or **Answer** "message".
    struct Fields
    {
        std::string role;
        std::string message;
        std::vector<Row> rows;
    };

    /// A block ```json kind [detail]. The kinds: request, answer (of the request above it), unanswered,
    /// notification.
    struct Example
    {
        std::string kind;
        std::string detail; ///< the header "method" of a request, "status" of an answer
        std::string body;
        int line = 0;
    };

    /// What stands under a heading "### `name`" or "### words", of the chapter "## words".
    struct Section
    {
        std::string chapter;
        std::string name; ///< empty: the chapter's own text
        std::vector<Fields> fields;
        std::vector<Example> examples;
        std::vector<std::string> listed; ///< the lines "- `name`"
    };

    std::vector<Section> sections;

    /// Throws when a line does not have the form that it seems to have.
    explicit ApiPage(const std::string& path);
};
