// vantor-keyring: one question to the Secret Service, for the library Keyring, which gives it 2 s.
//
//   vantor-keyring store NAME LABEL   the secret comes on the standard input
//   vantor-keyring load NAME
//   vantor-keyring remove NAME
//
// Answers with "+" and the secret that was asked for, or "-" and the reason. It never lets the service ask
// the user: a locked keyring is one that is not there.

#include <libsecret/secret.h>

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr unsigned kLimitSeconds = 5; // the library ends it earlier
constexpr std::size_t kSecretLimit = 2048;
constexpr char kLocked[] = "the keyring is locked";

const SecretSchema kSchema = {
    "vantor.Secret", SECRET_SCHEMA_NONE, {{"name", SECRET_SCHEMA_ATTRIBUTE_STRING}}, 0, 0, 0, 0, 0, 0, 0, 0};

[[noreturn]] void Answer(char sign, const char* text, std::size_t size)
{
    const bool written = ::write(STDOUT_FILENO, &sign, 1) == 1 &&
                         (size == 0 || ::write(STDOUT_FILENO, text, size) == static_cast<ssize_t>(size));
    ::_exit(written ? 0 : 1); // the bus's threads have nothing to finish
}

[[noreturn]] void Refuse(const char* why)
{
    Answer('-', why, std::strlen(why));
}

[[noreturn]] void Succeed()
{
    Answer('+', nullptr, 0);
}

void Require(bool worked, const GError* error)
{
    if (!worked || error)
        Refuse(error ? error->message : "the keyring refused");
}

GVariant* NeverAsk(SecretService*, SecretPrompt*, GCancellable*, const GVariantType*, GError**)
{
    Refuse(kLocked);
}

SecretService* Service(SecretServiceFlags flags)
{
    GError* error = nullptr;
    SecretService* const service = secret_service_get_sync(flags, nullptr, &error);
    Require(service != nullptr, error);
    SECRET_SERVICE_GET_CLASS(service)->prompt_sync = &NeverAsk;
    return service;
}

GHashTable* AttributesOf(const char* name)
{
    return secret_attributes_build(&kSchema, "name", name, nullptr);
}

/// The default collection, if it can be used.
SecretCollection* RequireUnlocked(SecretService* service)
{
    GError* error = nullptr;
    SecretCollection* const collection = secret_collection_for_alias_sync(
        service, SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, nullptr, &error);
    Require(true, error);
    if (!collection)
        Refuse("there is no default keyring");
    if (secret_collection_get_locked(collection))
        Refuse(kLocked);
    return collection;
}

/// The entries of the name. A locked keyring may not tell what it has.
GList* Find(SecretService* service, const char* name, int flags)
{
    GError* error = nullptr;
    GList* const items = secret_service_search_sync(service, &kSchema, AttributesOf(name),
                                                    static_cast<SecretSearchFlags>(flags | SECRET_SEARCH_ALL),
                                                    nullptr, &error);
    Require(true, error);
    if (!items)
        RequireUnlocked(service);
    return items;
}

[[noreturn]] void Load(const char* name)
{
    const GList* const items = Find(Service(SECRET_SERVICE_OPEN_SESSION), name, SECRET_SEARCH_LOAD_SECRETS);
    if (!items)
        Refuse("the keyring has no such entry");
    SecretItem* const item = SECRET_ITEM(items->data);
    if (secret_item_get_locked(item))
        Refuse(kLocked);
    SecretValue* const value = secret_item_get_secret(item);
    gsize size = 0;
    const gchar* const secret = value ? secret_value_get(value, &size) : nullptr;
    if (!secret || size > kSecretLimit)
        Refuse("the entry of the keyring cannot be read");
    Answer('+', secret, size);
}

/// A service that does not run yet is not started for a new secret: it could only be locked.
void RequireRunningService()
{
    GError* error = nullptr;
    GDBusConnection* const bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, &error);
    Require(bus != nullptr, error);
    GVariant* const answer = g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "NameHasOwner",
        g_variant_new("(s)", "org.freedesktop.secrets"), G_VARIANT_TYPE("(b)"), G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, &error);
    Require(answer != nullptr, error);
    gboolean isOwned = FALSE;
    g_variant_get(answer, "(b)", &isOwned);
    if (!isOwned)
        Refuse("no keyring service runs");
}

SecretValue* SecretFromInput()
{
    static char text[kSecretLimit];
    std::size_t size = 0;
    ssize_t got = 0;
    while (size < sizeof text && (got = ::read(STDIN_FILENO, text + size, sizeof text - size)) > 0)
        size += static_cast<std::size_t>(got);
    if (got < 0 || size == 0)
        Refuse("there is no secret");
    return secret_value_new(text, static_cast<gssize>(size), "text/plain");
}

[[noreturn]] void Store(const char* name, const char* label)
{
    // Before any refusal: the answer is lost on a socket that is closed with input unread.
    SecretValue* const secret = SecretFromInput();
    RequireRunningService();
    SecretService* const service = Service(SECRET_SERVICE_OPEN_SESSION);
    if (Find(service, name, 0))
        Refuse("the keyring has an entry of that name");
    GError* error = nullptr;
    SecretItem* const item = secret_item_create_sync(RequireUnlocked(service), &kSchema, AttributesOf(name),
                                                     label, secret, SECRET_ITEM_CREATE_NONE, nullptr, &error);
    Require(item != nullptr, error);
    Succeed();
}

[[noreturn]] void Remove(const char* name)
{
    for (const GList* at = Find(Service(SECRET_SERVICE_NONE), name, 0); at; at = at->next) {
        GError* error = nullptr;
        Require(secret_item_delete_sync(SECRET_ITEM(at->data), nullptr, &error), error);
    }
    Succeed();
}

} // namespace

int main(int argc, char* argv[])
{
    ::prctl(PR_SET_DUMPABLE, 0);
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    ::alarm(kLimitSeconds);
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "load" && argc == 3)
        Load(argv[2]);
    if (command == "remove" && argc == 3)
        Remove(argv[2]);
    if (command == "store" && argc == 4)
        Store(argv[2], argv[3]);
    Refuse("usage: vantor-keyring store NAME LABEL | load NAME | remove NAME");
}
