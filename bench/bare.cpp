// What the game is measured against: the least that an SDL2 program with a picture and a line of text can do.
//
//     bare PICTURE OTHER_PICTURE FONT
//
// A click changes the picture, F11 switches to a display mode of 800 x 600 and back, everything else is waited
// for. It keeps one picture at a time, as the game does.
#include <SDL2/SDL.h>
#include <SDL2/SDL_ttf.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr int kTextSize = 16;
constexpr SDL_Color kWhite{255, 255, 255, 255};

struct Bare {
    SDL_Window* window;
    SDL_Surface* picture;
    SDL_Surface* text;
};

void Show(const Bare& bare)
{
    SDL_Surface* surface = SDL_GetWindowSurface(bare.window);
    SDL_Rect corner{kWidth - bare.text->w, kHeight - bare.text->h, 0, 0};
    SDL_BlitSurface(bare.picture, nullptr, surface, nullptr);
    SDL_BlitSurface(bare.text, nullptr, surface, &corner);
    SDL_UpdateWindowSurface(bare.window);
}

// Without a window manager nobody moves the window to where the smaller screen is.
void SwitchScreen(SDL_Window* window)
{
    if ((SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN) != 0) {
        SDL_SetWindowFullscreen(window, 0);
        return;
    }
    const SDL_DisplayMode wanted{SDL_PIXELFORMAT_RGB888, kWidth, kHeight, 0, nullptr};
    SDL_DisplayMode mode{};
    SDL_GetClosestDisplayMode(0, &wanted, &mode);
    SDL_SetWindowPosition(window, 0, 0);
    SDL_SetWindowDisplayMode(window, &mode);
    SDL_SetWindowFullscreen(window, SDL_WINDOW_FULLSCREEN);
}

// False when the program is to end.
bool Handle(Bare& bare, const SDL_Event& event, const char* other)
{
    if (event.type == SDL_KEYDOWN && event.key.keysym.sym == SDLK_F11) {
        SwitchScreen(bare.window);
    } else if (event.type == SDL_MOUSEBUTTONUP) {
        SDL_FreeSurface(bare.picture);
        bare.picture = SDL_LoadBMP(other);
        Show(bare);
    } else if (event.type == SDL_WINDOWEVENT && (event.window.event == SDL_WINDOWEVENT_EXPOSED ||
                                                 event.window.event == SDL_WINDOWEVENT_SIZE_CHANGED)) {
        Show(bare);
    }
    return event.type != SDL_QUIT;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fputs("usage: bare PICTURE OTHER_PICTURE FONT\n", stderr);
        return EXIT_FAILURE;
    }
    const char* names[] = {argv[1], argv[2]};
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0 || TTF_Init() != 0) {
        std::fprintf(stderr, "bare: %s\n", SDL_GetError());
        return EXIT_FAILURE;
    }
    TTF_Font* font = TTF_OpenFont(argv[3], kTextSize);
    Bare bare{SDL_CreateWindow("Bare", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, kWidth, kHeight,
                               SDL_WINDOW_RESIZABLE),
              SDL_LoadBMP(names[0]), TTF_RenderUTF8_Blended(font, "one line of text", kWhite)};
    if (bare.window == nullptr || bare.picture == nullptr || bare.text == nullptr) {
        std::fprintf(stderr, "bare: %s\n", SDL_GetError());
        return EXIT_FAILURE;
    }
    Show(bare);
    std::size_t clicks = 0;
    SDL_Event event{};
    while (SDL_WaitEvent(&event) == 1 && Handle(bare, event, names[(clicks + 1) % 2])) {
        clicks += event.type == SDL_MOUSEBUTTONUP ? 1 : 0;
    }
    SDL_Quit();
    return EXIT_SUCCESS;
}
