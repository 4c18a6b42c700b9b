"""Goes through the game by the accessibility bus alone, in one style: makes a player, looks at every screen, and
plays a set of a network match; in "Slate" it hosts that match and buys a card, in "Ember" it joins and plays an arcade
match. Fails on a control that can be reached and has no name, no role or no value, on a press that keeps the reader
waiting, and on what is not told.

    walk.py FOLDER Slate|Ember     with the programs of FOLDER; needs a display and a session bus (see run)
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version('Atspi', '2.0')

from check import Checker, key
from reader import Missing, Reader, settle, wait_for
from gi.repository import Atspi

PROMPT = 1.0  # seconds within which a press is answered, on a busy machine; a box stays open for longer
MOST_MOVES = 400
ENOUGH = 15  # a total with which to stand
ARCADE_CARDS = 'Arcade Match: Select Cards'
PORTS = {'Slate': 6461, 'Ember': 6462}
PEER = '127.0.0.2'


class Walk:
    def __init__(self, folder, style):
        self.folder = folder
        self.style = style
        self.home = tempfile.mkdtemp(prefix='kv-walk-')
        self.begun = time.monotonic()
        self.peer = None
        surroundings = dict(os.environ, HOME=self.home, XDG_DATA_HOME=self.home, XDG_RUNTIME_DIR=self.home,
                            QT_QPA_PLATFORM='xcb', QT_LINUX_ACCESSIBILITY_ALWAYS_ON='1', SDL_AUDIODRIVER='dummy')
        self.game = subprocess.Popen([f'{folder}/vantri'], env=surroundings)
        self.reader = Reader.find('kelm-vantri')
        self.checker = Checker(self.reader)

    def close(self):
        for process in (self.game, self.peer):
            if process is not None:
                process.terminate()
                process.wait()
        shutil.rmtree(self.home, ignore_errors=True)

    # --- What every step is made of ------------------------------------------------------------------------

    def look_at(self, title, tab=True):
        """Looks at all that is shown on the screen of this title."""
        self.reader.get(re.escape(title), 'frame')
        settle(0.2)  # what comes once the screen stands
        print(f'{time.monotonic() - self.begun:.0f} s: {title}', flush=True)
        self.checker.look(f'{title} ({self.style})', title, tab)

    def press(self, pattern):
        taken = self.reader.press(pattern)
        if taken > PROMPT:
            self.checker.faults.append(f'/{pattern}/ keeps the reader waiting for {taken:.1f} s')

    def choose(self, name, entry):
        """An entry of a list: names of entries stand in more than one."""
        next(item for item in self.reader.get(name, 'list').children() if item.name == entry).press()
        self.expect_chosen(name, entry)

    def expect_chosen(self, name, entry):
        chosen = [item.name for item in self.reader.get(name, 'list').children() if item.has(Atspi.StateType.SELECTED)]
        if chosen != [entry]:
            self.checker.faults.append(f'chosen in "{name}": {chosen} instead of {entry}')

    def number(self, pattern):
        """What stands behind the colon of a name."""
        return int(self.reader.get(pattern).name.split(': ')[1])

    # --- Start, menu, options ------------------------------------------------------------------------------

    def make_player(self):
        self.look_at('Kelm Vantri')
        self.press('create')
        self.reader.get('Player name').write('Zo\u00eb')
        self.look_at('Kelm Vantri')
        self.press('next')
        self.reader.get('Filename').write('a/b')
        self.reader.heard('invalid char')
        self.reader.get('(?s)Notes: .*invalid char.*')
        self.reader.get('Filename').write('zoe')
        self.press('confirm')
        self.reader.heard('zoe is selected')
        self.press('continue')

    def menu(self):
        self.look_at('Welcome to Kelm Vantri')

    def question(self):
        self.press('current player: .*')  # opens a box
        self.press('No')
        self.reader.usable('arcade')

    def choose_style(self):
        """A new player begins in "Slate"."""
        self.press('options')
        self.expect_chosen('Game appearance', 'Slate')
        self.choose('Game appearance', self.style)
        self.choose('Speed', 'Fast!')
        self.press('OK')
        self.reader.usable('arcade')

    def record(self):
        self.press('matches: your record')
        self.look_at('Your matches')
        self.reader.get('Matches', 'table')
        self.reader.get('Credits over time: .*')
        self.press('Back to the menu')
        self.reader.usable('arcade')

    def options(self):
        self.press('options')
        self.look_at('Game Options')
        self.expect_chosen('Game appearance', self.style)
        self.press('Your portrait: choose another one')
        self.portraits()
        self.keys()
        self.press('OK')
        self.reader.usable('arcade')

    def portraits(self):
        self.look_at('Choose your portrait')
        self.press('portrait 34, a white robot with a screen for a face, smiling')
        self.reader.get('Chosen: portrait 34.*')
        self.expect_chosen('Portraits', 'portrait 34, a white robot with a screen for a face, smiling')
        self.press('OK')
        self.reader.get('Game Options', 'frame')

    def keys(self):
        self.press('Enable match hotkeys')
        self.press('set keys')
        if not self.reader.get('Enable match hotkeys').has(Atspi.StateType.CHECKED):
            self.checker.faults.append('a check box does not tell that it is checked')
        self.reader.get('Key for Stand: .*')
        self.look_at('Game Options')
        self.press('Key for Stand: .*')
        self.reader.heard('^Push key')
        key('g')
        self.reader.heard('^Key for Stand: G$')
        self.press('done')
        self.press('Enable match hotkeys')

    # --- Cards and matches ---------------------------------------------------------------------------------

    def set_stake(self):
        self.look_at(ARCADE_CARDS)
        self.reader.get('how much do you wager\\?', 'panel')
        self.press('Credits: \\d+ \\(fills the amount\\)')
        if not self.reader.get('Stake', 'text').text():
            raise Missing('the amount that was filled in')
        self.reader.get('Stake', 'text').write('10')
        self.press('wager')
        self.reader.heard('^Stake 10\\.')

    def fill_deck(self):
        """Takes a card out of the full deck, and puts in whatever there is until it is full again."""
        self.card(', deck card ').press()
        self.reader.heard('removed\\. 9 of 10 cards')
        while not self.reader.look('Cards in the deck: 10 of 10'):
            self.card(' in the collection').press()
            self.reader.heard('added\\. \\d+ of 10 cards')

    def card(self, where):
        """A card that can be pressed now."""
        return wait_for(lambda: next((node for node in self.reader.everything()
                                      if where in node.name and node.enabled and node.actions()), None), where)

    def arcade(self, play):
        self.press('arcade')
        self.set_stake()
        if play:
            self.fill_deck()
        self.look_at(ARCADE_CARDS)
        self.press('continue')
        self.reader.usable('End Turn')
        self.look_at(self.reader.get('.*', 'frame').name, tab=False)
        if play:
            self.hear_table()
            self.card('hand card').press()
            self.play_until(lambda: self.reader.look(ARCADE_CARDS, 'frame'))
        else:
            self.forfeit(ARCADE_CARDS)
        self.press('End: back without a match')
        if self.reader.look('Yes'):  # a run that has won credits
            self.press('Yes')
        self.reader.usable('arcade')

    def hear_table(self):
        key('F2')
        self.reader.heard("^Your table: .*total .*'s table: .*Sets 0 to 0\\. .*Your turn\\.")
        key('F3')
        self.reader.heard('^Hand: ')
        self.reader.get('Your turn light: on')
        self.reader.get("Opponent's turn light: off")

    def play_until(self, end, banners=True):
        """By the buttons and by what is told of the table. The banner of a set is left open without `banners`."""
        for _ in range(MOST_MOVES):
            settle(0.15)
            if end():
                return
            shown = {node.name: node for node in self.reader.everything()}
            total = next((int(name.split(': ')[1]) for name in shown if name.startswith('Your total: ')), 0)
            move = 'Stand' if total >= ENOUGH else 'End Turn'
            for name in ('continue', move) if banners else (move,):
                if name in shown and shown[name].enabled and shown[name].actions():
                    shown[name].press()
                    break
        raise Missing(f'the end of the match within {MOST_MOVES} looks')

    def forfeit(self, title):
        self.press('Forfeit the match')
        self.press('Yes')
        self.press('continue')
        self.reader.get(title, 'frame')

    def campaign(self, buy):
        self.press('campaign')
        self.look_at('Kelm Vantri Campaign')
        self.press('view deck')
        self.reader.usable('Buy cards')
        if buy:
            self.buy_card()
        self.look_at(self.reader.get('.*', 'frame').name)
        if buy:
            self.press('Deck view')
        self.press('ok')
        self.reader.get('Kelm Vantri Campaign', 'frame')
        self.press('Close')
        self.reader.usable('arcade')

    def buy_card(self):
        """The first one that can be paid."""
        self.press('Buy cards')
        before = self.number('Credits: .*')
        for node in list(self.reader.everything()):
            if ' in the collection' not in node.name or not node.enabled:
                continue
            node.press()
            told = self.reader.heard('(Price|Refused)')
            if 'Refused' not in told:
                break
        price = int(re.search('Price (\\d+)', told).group(1))
        self.reader.get(f'Price: {price}')
        self.press('buy')
        self.reader.heard(f'^Bought .*\\. {before - price} credits\\.$')
        if self.number('Credits: .*') != before - price:
            self.checker.faults.append('the credits are not what was told')

    # --- The network ---------------------------------------------------------------------------------------

    def network(self, meet):
        """`meet`: how the card screen is come to, with the stake agreed upon."""
        self.press('network')
        self.look_at('Kelm Vantri Network')
        self.press('Port: .*')
        self.card('1 - 65535').write(str(PORTS[self.style]))
        self.press('OK')
        meet()
        self.network_match()
        self.press('Close')
        self.reader.usable('arcade')

    def start_peer(self, *options):
        self.peer = subprocess.Popen([f'{self.folder}/vantri-peer', '--name', 'Peer', *options],
                                     stdout=subprocess.DEVNULL)

    def join(self):
        self.start_peer('--host', f'{PEER}:{PORTS[self.style]}')
        self.press('Join a game')
        self.reader.get('Address to join', 'text').write(PEER)
        self.press('Open the connection: connect')
        self.press('Start: ready to play')
        self.reader.heard('Peer proposes a wager of 10')
        self.press('accept')

    def host(self):
        self.press('Open the connection: host')
        self.start_peer('--join', f'127.0.0.1:{PORTS[self.style]}')
        self.press('Start: ready to play')
        self.reader.get('how much do you wager\\?', 'panel')
        self.reader.get('Stake', 'text').write('10')
        self.press('propose')

    def network_match(self):
        """Fills the deck, plays a set, and gives the match up."""
        self.reader.heard('^Stake 10\\.')
        self.fill_deck()
        self.press('continue')
        self.play_until(lambda: self.reader.look('continue', 'push button'), banners=False)
        self.press('continue')
        self.reader.usable('End Turn')
        self.forfeit('Kelm Vantri Network')


def main():
    walk = Walk(sys.argv[1], sys.argv[2])
    slate = walk.style == 'Slate'
    begun = time.monotonic()
    try:
        walk.make_player()
        walk.choose_style()
        walk.menu()
        walk.question()
        walk.campaign(buy=slate)
        walk.arcade(play=not slate)
        walk.network(walk.host if slate else walk.join)
        walk.record()
        walk.options()
    except Missing as missing:
        walk.checker.faults.append(str(missing))
        for node in walk.reader.everything():
            print('   ', node, node.actions())
    finally:
        walk.close()
    for fault in walk.checker.faults:
        print('FAULT:', fault)
    print(f'{walk.style}: {walk.checker.screens} looks at screens, {len(walk.checker.faults)} faults, '
          f'{time.monotonic() - begun:.0f} s')
    return 1 if walk.checker.faults else 0


if __name__ == '__main__':
    sys.exit(main())
