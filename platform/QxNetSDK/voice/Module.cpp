#include "QxNetSDK/voice/Encoder.h"
#include "QxNetSDK/voice/SoundInput.h"

#include <boost/config.hpp>

extern "C" BOOST_SYMBOL_EXPORT sdk::IVoiceInput* QxNetOpenVoiceInput(std::int32_t* error)
{
    PaError failure = paNoError;
    sdk::IVoiceInput* input = sdk::CSoundInput::Open(failure).release();
    *error = failure;
    return input;
}

extern "C" BOOST_SYMBOL_EXPORT sdk::IVoiceEncoder* QxNetMakeVoiceEncoder(const sdk::VoiceFormat* format)
{
    return sdk::CEncoder::Make(*format).release();
}
