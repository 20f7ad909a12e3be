#pragma once

#include <string_view>

namespace Base {

/// True for the name of a field or header whose value is a credential and must not be shown: one that
/// contains password, passwd, pwd, token, secret, credential, authorization, cookie, session or username,
/// that ends in key, or that is pass, pin or auth. Letter case, "-" and "_" do not count.
bool IsCredentialName(std::string_view name);

} // namespace Base
