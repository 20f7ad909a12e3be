#pragma once

#include <string>
#include <vector>

/// A text, or the bytes that a key's digits stand for, to be looked for in everything that a run has left.
struct Secret
{
    std::string what;
    std::string text;
    bool isKey = false; ///< 64 hexadecimal digits; half of them counts too
};

/// Where and in which form a secret was found.
struct Finding
{
    std::string what, form, file;
};

/// Looks for secrets as they are, in base64, as UTF-16, as hexadecimal digits of either case with whatever
/// stands between them, and in the memory that crash reports show as words.
std::vector<Finding> FindSecrets(const std::vector<Secret>& secrets, const std::string& file,
                                 const std::string& content);

/// The same in every file below the folder but one.
std::vector<Finding> FindSecretsBelow(const std::vector<Secret>& secrets, const std::string& folder,
                                      const std::string& except = {});

std::string Base64(const std::string& bytes);
