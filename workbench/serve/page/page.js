// The page: each part shows its own, all follow the one state.

import {showCatalogue} from './catalogue.js';
import {byId} from './dom.js';
import {follow} from './following.js';
import {showGlass} from './glass.js';
import {showHistory} from './history.js';
import {showAnswering, showMessages} from './messages.js';
import {showNetwork} from './network.js';
import {showOut} from './out.js';
import {showParameters} from './parameters.js';
import {showPictures} from './pictures.js';

showMessages();
showNetwork();
showPictures();
showParameters();
showGlass();
showCatalogue();
showHistory();
showOut();
byId('help-button').addEventListener('click', () => byId('help').showModal());

follow(showAnswering);
