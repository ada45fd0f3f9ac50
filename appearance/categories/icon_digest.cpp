#include "appearance/categories/icon_digest.h"

IconDigester::IconDigester() {
    if (!CryptAcquireContextW(&provider_, nullptr, nullptr, PROV_RSA_FULL, CRYPT_VERIFYCONTEXT))
        provider_ = 0;
}

IconDigester::~IconDigester() {
    if (provider_) CryptReleaseContext(provider_, 0);
}

std::optional<IconDigest> IconDigester::Digest(std::span<const std::uint8_t> bytes) const {
    HCRYPTHASH hash = 0;
    if (!provider_ || !CryptCreateHash(provider_, CALG_MD5, 0, 0, &hash)) return std::nullopt;
    IconDigest digest;
    DWORD size = static_cast<DWORD>(digest.size());
    const bool done = CryptHashData(hash, bytes.data(), static_cast<DWORD>(bytes.size()), 0) &&
                      CryptGetHashParam(hash, HP_HASHVAL, digest.data(), &size, 0) &&
                      size == digest.size();
    CryptDestroyHash(hash);
    return done ? std::optional(digest) : std::nullopt;
}
